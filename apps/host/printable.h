#pragma once

#include <cstddef>
#include <string>

namespace app {

/// Where words and messages are cut that are shown again to who typed them.
inline constexpr std::size_t longestWord = 80;
inline constexpr std::size_t longestMessage = 1000;

/// `text` without control characters, cut to `longest` bytes. A terminal's escape sequences in
/// somebody's script must not reach ours.
[[nodiscard]] std::string printable(std::string text, std::size_t longest);

} // namespace app
