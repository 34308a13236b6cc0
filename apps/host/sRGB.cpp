#include "host/sRGB.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>

namespace app {

std::array<std::uint8_t, 4> sRGBFromLinear(nyxColor_rgba const& color) {
    // Through a comparison that a NaN fails.
    float const alpha = color.a > 0 ? std::min(color.a, 1.0f) : 0.0f;
    return {sRGBFromLinear(color.r), sRGBFromLinear(color.g), sRGBFromLinear(color.b),
            static_cast<std::uint8_t>(std::lround(alpha * 255.0f))};
}

nyxColor_rgba linearFromSRGB(std::array<std::uint8_t, 4> const& bytes) {
    return {linearFromSRGB(bytes[0]), linearFromSRGB(bytes[1]), linearFromSRGB(bytes[2]),
            static_cast<float>(bytes[3]) / 255.0f};
}

std::string hexColor(nyxColor_rgba const& color) {
    auto const [red, green, blue, alpha] = sRGBFromLinear(color);
    char text[16];
    std::snprintf(text, sizeof text, "#%02x%02x%02x", red, green, blue);
    return text;
}

std::string hexColorWithAlpha(nyxColor_rgba const& color) {
    unsigned const alpha = sRGBFromLinear(color)[3];
    char text[8] = "";
    if (alpha != 255) {
        std::snprintf(text, sizeof text, "%02x", alpha);
    }
    return hexColor(color) + text;
}

std::optional<nyxColor_rgba> colorFromHex(std::string_view text) {
    if ((text.size() != 7 && text.size() != 9) || text[0] != '#') {
        return {};
    }
    std::array<std::uint8_t, 4> bytes{0, 0, 0, 255};
    for (std::size_t i = 0; 2 * i + 1 < text.size(); ++i) {
        char const* const end = text.data() + 2 * i + 3;
        auto const [read, error] = std::from_chars(end - 2, end, bytes[i], 16);
        if (error != std::errc() || read != end) {
            return {};
        }
    }
    return linearFromSRGB(bytes);
}

} // namespace app
