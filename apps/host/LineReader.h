#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>

namespace app {

/// The longest line that is taken; what is longer is no command but a wrong file.
inline constexpr std::size_t longestLine = std::size_t{1} << 20;

enum class ReadResult { Line, TooLong, End };

/// Reads a line without its end. Of one that is too long nothing is kept, and its rest is not yet
/// read, for it may have no end; skipLine() does that.
ReadResult readLine(std::istream& in, std::string& line);

/// Reads on to the end of the line.
void skipLine(std::istream& in);

} // namespace app
