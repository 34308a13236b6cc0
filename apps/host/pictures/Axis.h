#pragma once

#include "host/pictures/Picture.h"

#include <string>
#include <vector>

namespace app {

/// An axis and its round places: multiples of 1, 2 or 5 times a power of ten.
class Axis {
public:
    /// For finite values from `low` to `high`, in at most `mostSteps` steps (4 or more). With
    /// `widened` the axis begins and ends at round places, else at the values themselves. A range
    /// without a width is given one.
    Axis(double low, double high, int mostSteps, bool widened);

    [[nodiscard]] double low() const { return low_; }
    [[nodiscard]] double high() const { return high_; }
    /// In ascending order, all within the axis.
    [[nodiscard]] std::vector<double> const& ticks() const { return ticks_; }
    /// How a tick is written: with the digits that tell it from its neighbours, and no more.
    [[nodiscard]] std::string label(double tick) const;
    /// How far along the axis a value is, 0 to 1.
    [[nodiscard]] double part(double value) const { return (value - low_) / (high_ - low_); }

    /// Writes the ticks below an axis that runs from `left` to `left + length` in a picture of
    /// that width: within the picture, and without those for which there is no room.
    void labelBelow(Picture& picture, double left, double length, double baseline) const;

private:
    double low_;
    double high_;
    double step_ = 1;
    std::vector<double> ticks_;
};

} // namespace app
