#pragma once

#include "host/pictures/Ink.h"

#include <string>
#include <variant>
#include <vector>

/// What pictures are made of. Lengths are in pixels from the upper left corner, y downwards.
namespace app::shape {

struct Point {
    double x = 0;
    double y = 0;
};

/// A line of colours from one point to another. Between two stops the bytes blend, as both writers
/// do it, so a blend in linear light takes stops in between. Stops in ascending order of `at`, 0 to
/// 1; of two at one place the first ends the left side and the second begins the right one.
struct LinearGradient {
    struct Stop {
        double at = 0;
        ColorBytes color{};
    };
    Point from;
    Point to;
    std::vector<Stop> stops;
};

/// Nothing, an ink, a colour of the scene, or a gradient.
using Fill = std::variant<std::monostate, Ink, ColorBytes, LinearGradient>;

/// Round corners and butt ends; none with a width of 0.
struct Stroke {
    Ink ink = Ink::Frame;
    double width = 0;
};

/// A circle is a rectangle whose corners take all of it.
struct Rectangle {
    Point corner;
    double width = 0;
    double height = 0;
    Fill fill{};
    Stroke outline{};
    double radius = 0; ///< of the corners
};

struct Path {
    enum class Step : std::uint8_t { Move, Line, Cubic, Close };
    std::vector<Step> steps;
    std::vector<Point> points; ///< one for each Move and Line, three for a Cubic, none for a Close
    Fill fill{};
    Stroke stroke{};
    bool crisp = false; ///< edges are not smoothed: for squares that meet

    void moveTo(Point p) { add(Step::Move, p); }
    void lineTo(Point p) { add(Step::Line, p); }
    void cubicTo(Point control, Point control2, Point end) {
        add(Step::Cubic, control);
        points.push_back(control2);
        points.push_back(end);
    }
    void close() { steps.push_back(Step::Close); }

private:
    void add(Step step, Point p) {
        steps.push_back(step);
        points.push_back(p);
    }
};

struct Text {
    enum class Anchor : std::uint8_t { Start, Middle, End };
    Point baseline;
    std::string text{}; ///< UTF-8
    double size = 12;
    Ink ink = Ink::Text;
    Anchor anchor = Anchor::Start;
    bool bold = false;
    bool upwards = false; ///< read from bottom to top
    std::string whole{};  ///< what `text` was cut from, for who points at it; empty when it was not
};

/// An image of square pixels in a rectangle of the same proportions.
struct Raster {
    Point corner;
    double width = 0;
    double height = 0;
    int columns = 0;
    int rows = 0;
    std::vector<std::uint8_t> rgba{}; ///< rows from the top, sRGB, not multiplied by alpha
};

using Shape = std::variant<Rectangle, Path, Text, Raster>;

/// The width of a text in the widest of the usual typefaces without serifs, in pixels: an estimate
/// that needs no fonts, so that a picture is laid out alike wherever it is made.
[[nodiscard]] double textWidth(std::string_view text, double size, bool bold = false);

/// Cuts a text that would be wider than `widest`, with an ellipsis, and keeps the whole of it.
[[nodiscard]] Text fitted(Text text, double widest);

} // namespace app::shape
