#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace app {

/// A list of colours as GIMP palettes (`.gpl`) have it: what painting programs exchange.
struct Palette {
    struct Entry {
        std::string name; ///< UTF-8, empty for none; nothing keeps two from being the same
        std::array<std::uint8_t, 3> sRGB{};
    };

    /// In how many columns such programs show a palette: what they take.
    static constexpr int mostColumns = 256;

    std::string name; ///< UTF-8
    int columns = 0;  ///< 0: left to the program
    std::vector<Entry> colors;
};

/// Reads the text of a `.gpl` file. Throws CommandError with "PATH:LINE: why" for the first line
/// that is none of one; the path is only said.
[[nodiscard]] Palette paletteFromText(std::string_view text, std::string const& path);

/// The text that is read as the same palette. Names are written as printable() shows them and
/// without blanks around them.
[[nodiscard]] std::string paletteText(Palette const& palette);

} // namespace app
