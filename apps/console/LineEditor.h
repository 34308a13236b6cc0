#pragma once

#include <optional>
#include <string>

/// Asks for a line at the terminal; nothing at the end of input. With libedit the line can be
/// edited, called back from the history, and completed to the name of a command by Tab; without it
/// the terminal does what it can.
[[nodiscard]] std::optional<std::string> editLine(char const* prompt);
