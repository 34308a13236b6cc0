#pragma once

#include "nyxembedded/sRGB.h"
#include "nyxrender/nyxColor.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace app {

// The edge between the records, which hold linear light, and what people see and type, which is
// sRGB (IEC 61966-2-1). Nothing else converts, and nothing converts twice.

using nyx::embedded::encodedFromLinear;
using nyx::embedded::linearFromEncoded;
using nyx::embedded::linearFromSRGB;
using nyx::embedded::sRGBFromLinear;

/// Red, green, blue, alpha as the bytes of an image, not multiplied by alpha; cut off at 0 and 1.
[[nodiscard]] std::array<std::uint8_t, 4> sRGBFromLinear(nyxColor_rgba const& color);
/// The inverse.
[[nodiscard]] nyxColor_rgba linearFromSRGB(std::array<std::uint8_t, 4> const& bytes);

/// "#rrggbb", without alpha: what a picture or a style sheet wants.
[[nodiscard]] std::string hexColor(nyxColor_rgba const& color);
/// The same with "aa" behind it where alpha is not 255, so that it can be typed again.
[[nodiscard]] std::string hexColorWithAlpha(nyxColor_rgba const& color);
/// The colour of "#rrggbb" or "#rrggbbaa", in small or capital letters; nothing for other text.
[[nodiscard]] std::optional<nyxColor_rgba> colorFromHex(std::string_view text);

} // namespace app
