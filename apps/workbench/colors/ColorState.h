#pragma once

#include "nyxrender/nyxColor.h"

namespace workbench {

/// The colour that an editor works on: four linear floats, and the hue and saturation that grey and
/// black do not have, so that they survive the way through them. Hue is 0 to 1 round the circle;
/// saturation and brightness are those of the encoded (sRGB) components, 0 to 1.
class ColorState {
public:
    [[nodiscard]] nyxColor_rgba const& value() const { return value_; }
    /// Takes a value from outside, exactly as it is.
    void setValue(nyxColor_rgba const& value);

    [[nodiscard]] float hue() const { return hue_; }
    [[nodiscard]] float saturation() const { return saturation_; }
    [[nodiscard]] float brightness() const { return brightness_; }
    /// The colour of these three; alpha stays.
    void setHsv(float hue, float saturation, float brightness);

    /// One component, 0 (red) to 3 (alpha), as the screen has it; the other ones stay exactly.
    [[nodiscard]] float encoded(int component) const;
    void setEncoded(int component, float encoded);
    /// The same, linear, in any range.
    [[nodiscard]] float linear(int component) const;
    void setLinear(int component, float linear);

private:
    void findHsv();

    nyxColor_rgba value_{0, 0, 0, 1};
    float hue_ = 0;
    float saturation_ = 0;
    float brightness_ = 0;
};

} // namespace workbench
