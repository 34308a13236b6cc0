#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

/// Single lines of files that hold a measured index of refraction. A line is any bytes without a
/// line feed; a line that its layout does not accept reads as nothing. Which lines are accepted,
/// and how an unclear one splits into numbers, is what these regular expressions (ECMAScript, on
/// bytes) say:
///
///     header   ^\s*([1234])\s*[,;\t]?\s*(\d*.?\d+)\s*[,;\t]?\s*(\d*.?\d+)\s*[,;\t]?\s*(\d+)\s*$
///     pair     ^\s*(\d*.?\d*)\s*[,;\t]?\s*(\d*.?\d*)\s*$
///     columns  ^\s*(\d*.?\d*)\s*[,;\t]\s*(\d*.?\d*)\s*[,;\t]\s*(\d*.?\d*)$
///
/// Their dots match any character, so by the letter "4 400 700 3" would be the numbers 4, "400 70",
/// 0 and 3. Therefore an accepted line that consists of exactly as many plain decimal numbers as
/// its layout has groups, parted by white space, commas and semicolons, means just these numbers;
/// of a header the first one has to be 1, 2, 3 or 4. From a group that is no number the leading
/// number counts, or 0. Time is linear in the length of the line.
namespace zsg {

struct IORHeader {
    std::int64_t unit = 0; ///< 1 to 4
    double start = 0;
    double end = 0;
    std::int64_t intervals = 0;
};

struct IORPair {
    double n = 0;
    double k = 0;
};

struct IORColumns {
    double wavelength = 0; ///< nanometres
    double n = 0;
    double k = 0;
};

[[nodiscard]] std::optional<IORHeader> readIORHeader(std::string_view line);
[[nodiscard]] std::optional<IORPair> readIORPair(std::string_view line);
/// Accepts one kind of line more: three plain numbers, parted as the expression demands, of which n
/// or k is negative. White space may follow them.
[[nodiscard]] std::optional<IORColumns> readIORColumns(std::string_view line);

} // namespace zsg
