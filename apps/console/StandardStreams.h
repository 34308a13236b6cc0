#pragma once

/// Prepares standard input and output for UTF-8 text without changed line ends, and a terminal for
/// coloured blocks. Called once, before anything is read or written.
void prepareStandardStreams();

/// Whether somebody sits at standard input and output.
[[nodiscard]] bool isTerminal();

/// Whether standard output is a terminal.
[[nodiscard]] bool isOutputTerminal();
