#pragma once

/// Prepares standard input and output for UTF-8 text without changed line ends, and a terminal for
/// coloured blocks. Called once, before anything is read or written.
void prepareStandardStreams();

/// Whether somebody sits at standard input and output.
[[nodiscard]] bool isTerminal();

/// Whether standard output is a terminal that shows every colour, and its user wants colours: one
/// that says so in COLORTERM (any on Windows), unless NO_COLOR holds something.
[[nodiscard]] bool showsColors();
