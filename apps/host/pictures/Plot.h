#pragma once

#include "host/pictures/Axis.h"
#include "host/pictures/Picture.h"

#include <optional>

namespace app {

/// A picture with axes around an area, their round places and titles, and a line above it that
/// explains what is in it.
class Plot {
public:
    struct Axes {
        Axis x;
        Axis left;
        std::optional<Axis> right;
        std::string xTitle;
        std::string leftTitle;
        std::string rightTitle;
    };
    enum class Side { Left, Right };

    Plot(std::string title, Axes axes);

    [[nodiscard]] shape::Point at(double x, double y, Side side = Side::Left) const;

    void line(shape::Path path, Ink ink, double width);
    void dot(shape::Point center, double radius, Ink ink);
    /// Adds to the line above the area: a dash of a line, or a dot.
    void explainLine(Ink ink, std::string const& text);
    void explainDot(Ink ink, std::string const& text);

    [[nodiscard]] Picture take() && { return std::move(picture_); }

private:
    void drawAxes();
    void explain(std::string const& text);

    Axes axes_;
    double left_; ///< of the area
    Picture picture_;
    double nextExplained_;
};

} // namespace app
