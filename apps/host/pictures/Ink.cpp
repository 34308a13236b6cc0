#include "host/pictures/Ink.h"

namespace app {

namespace {

struct Row {
    std::uint32_t light;
    std::uint32_t dark;
};

constexpr Row rows[inkCount] = {
    {0xffffff, 0x14181d}, // Paper
    {0x1f2328, 0xe6edf3}, // Text
    {0x59636e, 0x9ba4ae}, // Faint
    {0xdfe3e8, 0x2d333b}, // Grid
    {0x8c959f, 0x6e7681}, // Frame
    {0x0a58b8, 0x6cb6ff}, // First
    {0xc0301c, 0xff8b7b}, // Second
    {0x1a7f37, 0x57c26a}, // Third
    {0x24292f, 0x0b0d10}, // Warp
    {0xfbfbf9, 0xc9ced6}, // Weft
};

} // namespace

ColorBytes inkColor(Ink ink, Theme theme) {
    Row const& row = rows[static_cast<int>(ink)];
    std::uint32_t const rgb = theme == Theme::Light ? row.light : row.dark;
    auto const byte = [rgb](int shift) { return static_cast<std::uint8_t>(rgb >> shift & 255); };
    return {byte(16), byte(8), byte(0), 255};
}

} // namespace app
