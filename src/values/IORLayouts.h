#pragma once

#include <iosfwd>
#include <string_view>
#include <vector>

namespace zsg {

struct IORSample {
    double n = 0;
    double k = 0;
    double wavelength = 0; ///< nanometres
};

/// A header line, then one pair of n and k per line at equally spaced abscissas. Lines before the
/// header, and later ones that are not a pair, are skipped. A blank line after the header is a
/// pair.
[[nodiscard]] std::vector<IORSample> readIORPairs(std::string_view text, std::ostream& messages);

/// Lines of wavelength, n and k. Other lines are skipped; one of 100 or more bytes ends the
/// reading.
[[nodiscard]] std::vector<IORSample> readIORTable(std::string_view text, std::ostream& messages);

} // namespace zsg
