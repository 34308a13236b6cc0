#include "workbench/colors/ColorState.h"

#include "host/sRGB.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace workbench {

namespace {

float& part(nyxColor_rgba& value, int component) {
    return component == 0 ? value.r : component == 1 ? value.g : component == 2 ? value.b : value.a;
}

} // namespace

void ColorState::setValue(nyxColor_rgba const& value) {
    value_ = value;
    findHsv();
}

void ColorState::setHsv(float hue, float saturation, float brightness) {
    hue_ = hue - std::floor(hue);
    saturation_ = std::clamp(saturation, 0.0F, 1.0F);
    brightness_ = std::clamp(brightness, 0.0F, 1.0F);
    // Each component falls off with its distance round the circle from where it is full.
    for (int component = 0; component < 3; ++component) {
        float const centre = float(component) / 3;
        float distance = std::abs(hue_ - centre);
        distance = std::min(distance, 1 - distance);
        float const share = std::clamp(2 - 6 * distance, 0.0F, 1.0F);
        part(value_, component) =
            app::linearFromEncoded(brightness_ * (1 - saturation_ + saturation_ * share));
    }
}

float ColorState::encoded(int component) const {
    return component == 3 ? value_.a : app::encodedFromLinear(linear(component));
}

void ColorState::setEncoded(int component, float encoded) {
    setLinear(component, component == 3 ? encoded : app::linearFromEncoded(encoded));
}

float ColorState::linear(int component) const {
    nyxColor_rgba value = value_;
    return part(value, component);
}

void ColorState::setLinear(int component, float linear) {
    part(value_, component) = linear;
    findHsv();
}

void ColorState::findHsv() {
    std::array const parts{encoded(0), encoded(1), encoded(2)};
    auto const [low, high] = std::ranges::minmax(parts);
    brightness_ = high;
    float const span = high - low;
    if (high > 0) {
        saturation_ = span / high;
    }
    // Rounding makes greys a little coloured: their hue is what it was.
    if (span < 1e-5F) {
        return;
    }
    float const sixths = high == parts[0]   ? (parts[1] - parts[2]) / span
                         : high == parts[1] ? 2 + (parts[2] - parts[0]) / span
                                            : 4 + (parts[0] - parts[1]) / span;
    float const hue = sixths / 6 - std::floor(sixths / 6);
    hue_ = hue < 1 ? hue : 0; // what lies just below 0 comes out as 1
}

} // namespace workbench
