#include "host/pictures/Plot.h"

#include <algorithm>
#include <cmath>

namespace app {

namespace {

constexpr double areaWidth = 560;
constexpr double areaHeight = 300;
constexpr double gap = 8;      ///< from an axis to what is written beside it
constexpr double besides = 28; ///< a title beside the labels, or only air
constexpr double top = 44;
constexpr double bottom = 52;

constexpr double areaBottom = top + areaHeight;
constexpr double explainedAt = top - 20; ///< its middle

using Anchor = shape::Text::Anchor;

shape::Text label(shape::Point baseline, std::string text, Anchor anchor) {
    shape::Text result;
    result.baseline = baseline;
    result.text = std::move(text);
    result.anchor = anchor;
    result.ink = Ink::Faint;
    return result;
}

/// The room that an axis takes beside the area.
double room(Axis const& axis) {
    double widest = 24;
    for (double const tick : axis.ticks()) {
        widest = std::max(widest, shape::textWidth(axis.label(tick), 12));
    }
    return std::ceil(besides + widest + gap);
}

} // namespace

Plot::Plot(std::string title, Axes axes)
    : axes_(std::move(axes)),
      left_(room(axes_.left)),
      picture_{left_ + areaWidth + (axes_.right ? room(*axes_.right) : besides),
               areaBottom + bottom,
               std::move(title),
               {}},
      nextExplained_(left_) {
    drawAxes();
}

shape::Point Plot::at(double x, double y, Side side) const {
    Axis const& upright = side == Side::Right && axes_.right ? *axes_.right : axes_.left;
    return {left_ + areaWidth * axes_.x.part(x), areaBottom - areaHeight * upright.part(y)};
}

void Plot::drawAxes() {
    constexpr double baseline = 4; // from the middle of the digits
    double const areaRight = left_ + areaWidth;
    shape::Path grid;
    grid.stroke = {Ink::Grid, 1};
    for (double const tick : axes_.x.ticks()) {
        double const x = at(tick, axes_.left.low()).x;
        grid.moveTo({x, top});
        grid.lineTo({x, areaBottom});
    }
    axes_.x.labelBelow(picture_, left_, areaWidth, areaBottom + 18);
    for (double const tick : axes_.left.ticks()) {
        double const y = at(axes_.x.low(), tick).y;
        grid.moveTo({left_, y});
        grid.lineTo({areaRight, y});
        picture_.add(label({left_ - gap, y + baseline}, axes_.left.label(tick), Anchor::End));
    }
    shape::Path frame;
    frame.stroke = {Ink::Frame, 1};
    frame.moveTo({left_, top});
    frame.lineTo({left_, areaBottom});
    frame.lineTo({areaRight, areaBottom});
    if (axes_.right) {
        frame.lineTo({areaRight, top});
        for (double const tick : axes_.right->ticks()) {
            double const y = at(axes_.x.low(), tick, Side::Right).y;
            frame.moveTo({areaRight, y});
            frame.lineTo({areaRight + gap / 2, y});
            picture_.add(
                label({areaRight + gap, y + baseline}, axes_.right->label(tick), Anchor::Start));
        }
    }
    picture_.add(std::move(grid));
    picture_.add(std::move(frame));
    auto const title = [&](shape::Point p, std::string const& text, bool upwards) {
        shape::Text shown = label(p, text, Anchor::Middle);
        shown.ink = Ink::Text;
        shown.upwards = upwards;
        picture_.add(std::move(shown));
    };
    double const middle = top + areaHeight / 2;
    title({left_ + areaWidth / 2, areaBottom + 40}, axes_.xTitle, false);
    title({18, middle}, axes_.leftTitle, true);
    if (axes_.right) {
        title({picture_.width - 12, middle}, axes_.rightTitle, true);
    }
}

void Plot::line(shape::Path path, Ink ink, double width) {
    path.stroke = {ink, width};
    picture_.add(std::move(path));
}

void Plot::dot(shape::Point center, double radius, Ink ink) {
    picture_.add(shape::Rectangle{
        {center.x - radius, center.y - radius}, 2 * radius, 2 * radius, ink, {}, radius});
}

void Plot::explainLine(Ink ink, std::string const& text) {
    shape::Path dash;
    dash.moveTo({nextExplained_, explainedAt});
    dash.lineTo({nextExplained_ + 22, explainedAt});
    line(std::move(dash), ink, 2);
    nextExplained_ += 28;
    explain(text);
}

void Plot::explainDot(Ink ink, std::string const& text) {
    dot({nextExplained_ + 4, explainedAt}, 4, ink);
    nextExplained_ += 14;
    explain(text);
}

void Plot::explain(std::string const& text) {
    shape::Text shown;
    shown.baseline = {nextExplained_, explainedAt + 4};
    shown.text = text;
    picture_.add(std::move(shown));
    nextExplained_ += shape::textWidth(text, 12) + 18;
}

} // namespace app
