#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace app {

/// Where words and messages are cut that are shown again to who typed them.
inline constexpr std::size_t longestWord = 80;
inline constexpr std::size_t longestMessage = 1000;

/// Names come from other people's files and may hold what a terminal obeys. In place of a control
/// character, of a character that turns the direction of writing round, and of a byte that is not
/// UTF-8 stands its number: "\x1b", "\u202e"; a line feed is "\n". The rest is as it was. A text
/// of more than `longest` bytes is cut, with "..." after it.
[[nodiscard]] std::string printable(std::string_view text, std::size_t longest = std::string::npos);

/// The same for whole lines: line feeds and tabs stay.
[[nodiscard]] std::string printableLines(std::string_view text);

} // namespace app
