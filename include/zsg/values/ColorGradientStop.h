#pragma once

#include "nyxrender/nyxColor.h"

namespace zsg {

/// One stop of a colour gradient. The slopes are stored for the renderer, which gives them their
/// meaning. A default stop is opaque black at location 0 with slopes 0.
class ColorGradientStop {
public:
    ColorGradientStop() = default;
    ColorGradientStop(nyxColor_rgba const& color, float location, float slopeLeft,
                      float slopeRight) noexcept
        : color_(color), location_(location), slopeLeft_(slopeLeft), slopeRight_(slopeRight) {}

    [[nodiscard]] nyxColor_rgba const& getColor() const noexcept { return color_; }
    void setColor(nyxColor_rgba const& color) noexcept { color_ = color; }

    /// Place on the gradient's axis, usually 0 to 1; nothing clamps it.
    [[nodiscard]] float getLocation() const noexcept { return location_; }
    void setLocation(float location) noexcept { location_ = location; }

    [[nodiscard]] float getSlopeLeft() const noexcept { return slopeLeft_; }
    void setSlopeLeft(float slope) noexcept { slopeLeft_ = slope; }
    [[nodiscard]] float getSlopeRight() const noexcept { return slopeRight_; }
    void setSlopeRight(float slope) noexcept { slopeRight_ = slope; }

    /// Exact, all seven numbers: a stop that holds a NaN equals nothing, not even itself.
    friend bool operator==(ColorGradientStop const&, ColorGradientStop const&) noexcept = default;
    /// Compares locations only.
    friend bool operator<(ColorGradientStop const& a, ColorGradientStop const& b) noexcept {
        return a.location_ < b.location_;
    }

private:
    nyxColor_rgba color_{0, 0, 0, 1};
    float location_ = 0;
    float slopeLeft_ = 0;
    float slopeRight_ = 0;
};

} // namespace zsg
