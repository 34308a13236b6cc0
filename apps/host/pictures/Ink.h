#pragma once

#include <array>
#include <cstdint>

namespace app {

/// Red, green, blue, alpha in sRGB, not multiplied by alpha.
using ColorBytes = std::array<std::uint8_t, 4>;

/// The colours of what a picture adds by itself. They follow the page that the picture stands on;
/// colours of the scene are shown as they are on either.
enum class Ink : std::uint8_t {
    Paper,
    Text,
    Faint, ///< text beside the text
    Grid,
    Frame,
    First, ///< of the lines of a plot
    Second,
    Third,
    Warp, ///< darker than the other on both pages, as weavers draw it
    Weft,
};
inline constexpr int inkCount = 10;

enum class Theme { Light, Dark };

/// The color of an ink, opaque.
[[nodiscard]] ColorBytes inkColor(Ink ink, Theme theme);

} // namespace app
