#pragma once

#include "nyxrender/nyxColor.h"

#include <string>
#include <vector>

namespace app {

/// A drawing of a few simple shapes in linear colours, in pixels from the upper left corner,
/// written as SVG text or as a PNG image. Texts are in the SVG only: drawing them into an image
/// would need fonts and a graphical application.
class Picture {
public:
    struct Point {
        double x = 0, y = 0;
    };

    struct Shape {
        enum Kind { Rectangle, Line, Circle, Text } kind = Line;
        std::vector<Point> points;
        double width = 0;
        double height = 0;
        nyxColor_rgba color;
        std::string text;
    };

    Picture(double width, double height) : width_(width), height_(height) {}

    void rectangle(Point corner, double width, double height, nyxColor_rgba const& fill);
    void line(std::vector<Point> points, nyxColor_rgba const& stroke, double width = 1);
    void circle(Point center, double radius, nyxColor_rgba const& fill);
    void text(Point baseline, std::string text);

    [[nodiscard]] double width() const { return width_; }
    [[nodiscard]] double height() const { return height_; }
    [[nodiscard]] std::vector<Shape> const& shapes() const { return shapes_; }

    [[nodiscard]] std::string svg() const;
    /// Writes a .svg or .png file; throws CommandError when that fails or the extension is another.
    void save(std::string const& path) const;

private:
    double width_;
    double height_;
    std::vector<Shape> shapes_;
};

namespace ink {
inline constexpr nyxColor_rgba black{0, 0, 0, 1};
inline constexpr nyxColor_rgba white{1, 1, 1, 1};
inline constexpr nyxColor_rgba grey{0.521f, 0.521f, 0.521f, 1};
inline constexpr nyxColor_rgba blue{0.0137f, 0.0999f, 0.521f, 1};
inline constexpr nyxColor_rgba red{0.6038f, 0.0331f, 0.01938f, 1};
inline constexpr nyxColor_rgba green{0.01938f, 0.2623f, 0.05127f, 1};
} // namespace ink

} // namespace app
