#include "host/Picture.h"

#include "host/Arguments.h"
#include "host/OutputFile.h"
#include "host/png.h"
#include "host/sRGB.h"

#include <QString>

#include <sstream>

namespace app {

namespace {

std::string paint(char const* attribute, nyxColor_rgba const& c) {
    std::string text = std::string(attribute) + "=\"" + hexColor(c) + '"';
    if (c.a < 1) {
        float const opacity = c.a > 0 ? c.a : 0; // a NaN is none
        text += ' ' + std::string(attribute) + "-opacity=\"" + std::to_string(opacity) + '"';
    }
    return text;
}

std::string escaped(std::string const& text) {
    return QString::fromStdString(text).toHtmlEscaped().toStdString();
}

} // namespace

void Picture::rectangle(Point corner, double width, double height, nyxColor_rgba const& fill) {
    shapes_.push_back({Shape::Rectangle, {corner}, width, height, fill, {}});
}

void Picture::line(std::vector<Point> points, nyxColor_rgba const& stroke, double width) {
    shapes_.push_back({Shape::Line, std::move(points), width, 0, stroke, {}});
}

void Picture::circle(Point center, double radius, nyxColor_rgba const& fill) {
    shapes_.push_back({Shape::Circle, {center}, radius, 0, fill, {}});
}

void Picture::text(Point baseline, std::string text) {
    shapes_.push_back({Shape::Text, {baseline}, 0, 0, ink::black, std::move(text)});
}

std::string Picture::svg() const {
    std::ostringstream out;
    out << R"(<svg xmlns="http://www.w3.org/2000/svg" width=")" << width_ << R"(" height=")"
        << height_ << "\">\n"
        << R"(<rect width="100%" height="100%" fill="#ffffff"/>)" << '\n';
    for (Shape const& s : shapes_) {
        Point const p = s.points.empty() ? Point{} : s.points.front();
        switch (s.kind) {
        case Shape::Rectangle:
            out << "<rect x=\"" << p.x << "\" y=\"" << p.y << "\" width=\"" << s.width
                << "\" height=\"" << s.height << "\" " << paint("fill", s.color) << "/>\n";
            break;
        case Shape::Line:
            out << R"(<polyline fill="none" )" << paint("stroke", s.color) << " stroke-width=\""
                << s.width << "\" points=\"";
            for (Point const& point : s.points) {
                out << point.x << ',' << point.y << ' ';
            }
            out << "\"/>\n";
            break;
        case Shape::Circle:
            out << "<circle cx=\"" << p.x << "\" cy=\"" << p.y << "\" r=\"" << s.width << "\" "
                << paint("fill", s.color) << "/>\n";
            break;
        case Shape::Text:
            out << "<text x=\"" << p.x << "\" y=\"" << p.y
                << R"(" font-family="sans-serif" font-size="12">)" << escaped(s.text)
                << "</text>\n";
            break;
        }
    }
    out << "</svg>\n";
    return out.str();
}

void Picture::save(std::string const& path) const {
    if (path.ends_with(".png")) {
        return writeOutputFile(path, pngBytes(*this));
    }
    if (!path.ends_with(".svg")) {
        throw CommandError("expected a path that ends in .svg or .png");
    }
    writeOutputFile(path, svg());
}

} // namespace app
