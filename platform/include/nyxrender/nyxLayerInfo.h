#pragma once

#include "nyxrender/nyxColor.h"

#include <cstddef>
#include <cstdint>

namespace nyx {

/// How a paint layer is laid over those below it. The first four and those from Darken on are the
/// separable modes of the W3C recommendation "Compositing and Blending Level 1"; Add and Subtract
/// are the sum and the difference of the two colours, cut off at 1 and at 0.
enum class ColorBlendMode : std::int32_t {
    Normal = 0,
    Multiply = 1,
    Screen = 2,
    Overlay = 3,
    Add = 4,
    Subtract = 5,
    Darken = 6,
    Lighten = 7,
    ColorDodge = 8,
    ColorBurn = 9,
    HardLight = 10,
    SoftLight = 11,
    Difference = 12,
    Exclusion = 13,
};

} // namespace nyx

/// One layer of a paint surface, exchanged with the renderer as it is.
struct nyxLayerInfo {
    nyx::ColorBlendMode blend_mode = nyx::ColorBlendMode::Normal;
    bool deleted = false;
    bool visible = true;
    char const* name = nullptr; ///< zero-terminated UTF-8 owned by the scene, or null
    nyxColor_rgba background;
    std::uint32_t id = 0;
};

static_assert(sizeof(nyxLayerInfo) == 40);
static_assert(offsetof(nyxLayerInfo, deleted) == 4 && offsetof(nyxLayerInfo, visible) == 5);
static_assert(offsetof(nyxLayerInfo, name) == 8 && offsetof(nyxLayerInfo, background) == 16);
static_assert(offsetof(nyxLayerInfo, id) == 32);
