#include "host/ColorArguments.h"
#include "host/Command.h"
#include "host/NamedValues.h"
#include "host/Picture.h"
#include "host/sRGB.h"

#include "zsg/values/ColorGradient.h"

#include <algorithm>
#include <cmath>
#include <ostream>
#include <vector>

namespace app {

namespace {

using zsg::ColorGradient;
using zsg::ColorGradientStop;

constexpr unsigned mostStops = 100'000;

ColorGradient& take(Host& host, Arguments& arguments) {
    return takeNamed<ColorGradient>(host, arguments, "a gradient");
}

struct Stop {
    float location = 0;
    nyxColor_rgba color;
    float slopeLeft = 0;
    float slopeRight = 0;
};

// LOCATION RGBA [slopes LEFT RIGHT]
Stop takeStop(Host& host, Arguments& arguments) {
    Stop stop;
    stop.location = static_cast<float>(arguments.real("a location"));
    stop.color = takeRgba(host, arguments);
    if (arguments.flag("slopes")) {
        stop.slopeLeft = static_cast<float>(arguments.real("a slope"));
        stop.slopeRight = static_cast<float>(arguments.real("a slope"));
    }
    return stop;
}

void make(Host& host, Arguments& arguments) {
    std::string const name = arguments.word("a name");
    arguments.done();
    keepNamed(host, name, ColorGradient());
}

void add(Host& host, Arguments& arguments) {
    ColorGradient& gradient = take(host, arguments);
    Stop const s = takeStop(host, arguments);
    arguments.done();
    gradient.addColorStop(s.color, s.location, s.slopeLeft, s.slopeRight);
}

void replace(Host& host, Arguments& arguments) {
    ColorGradient& gradient = take(host, arguments);
    unsigned const index = arguments.number("a position");
    Stop const s = takeStop(host, arguments);
    bool const sort = arguments.flag("sort");
    arguments.done();
    if (!gradient.addColorStopAt(index, s.color, s.location, s.slopeLeft, s.slopeRight, sort)) {
        throw CommandError("there is no stop at that position");
    }
}

void blend(Host& host, Arguments& arguments) {
    ColorGradient& gradient = take(host, arguments);
    bool const on = arguments.onOff();
    arguments.done();
    gradient.setBlend(on);
}

void size(Host& host, Arguments& arguments) {
    ColorGradient& gradient = take(host, arguments);
    unsigned const count = arguments.number("a number of stops");
    arguments.done();
    if (count > mostStops) {
        throw CommandError("expected at most " + std::to_string(mostStops) + " stops");
    }
    gradient.resizeStops(count);
}

void show(Host& host, Arguments& arguments) {
    ColorGradient const& gradient = take(host, arguments);
    arguments.done();
    for (ColorGradientStop const& stop : gradient.getStops()) {
        host.out() << "  " << stop.getLocation() << ' ' << hexColorWithAlpha(stop.getColor());
        if (stop.getSlopeLeft() != 0 || stop.getSlopeRight() != 0) {
            host.out() << " slopes " << stop.getSlopeLeft() << ' ' << stop.getSlopeRight();
        }
        host.out() << '\n';
    }
    host.out() << (gradient.blend() ? "  blends\n" : "  does not blend\n");
}

nyxColor_rgba colorAt(QList<ColorGradientStop> const& stops, bool blend, float location) {
    auto const next = std::find_if(stops.begin(), stops.end(), [&](ColorGradientStop const& s) {
        return s.getLocation() > location;
    });
    if (next == stops.begin()) {
        return next->getColor();
    }
    ColorGradientStop const& before = *std::prev(next);
    if (next == stops.end() || !blend) {
        return before.getColor();
    }
    float const t =
        (location - before.getLocation()) / (next->getLocation() - before.getLocation());
    auto const mix = [t](float a, float b) { return a + (b - a) * t; };
    nyxColor_rgba const a = before.getColor();
    nyxColor_rgba const b = next->getColor();
    return {mix(a.r, b.r), mix(a.g, b.g), mix(a.b, b.b), mix(a.a, b.a)};
}

void save(Host& host, Arguments& arguments) {
    ColorGradient const& gradient = take(host, arguments);
    std::string const path = arguments.word("a path");
    arguments.done();
    QList<ColorGradientStop> const stops = gradient.getStops();
    if (stops.isEmpty()) {
        throw CommandError("the gradient has no stops");
    }
    if (!std::ranges::all_of(stops, [](auto const& s) { return std::isfinite(s.getLocation()); })) {
        throw CommandError("a stop of the gradient cannot be drawn");
    }
    constexpr int width = 512;
    constexpr double margin = 8;
    Picture picture(width + 2 * margin, 80);
    std::vector<nyxColor_rgba> columns;
    columns.reserve(width);
    for (int x = 0; x < width; ++x) {
        columns.push_back(colorAt(stops, gradient.blend(), (static_cast<float>(x) + 0.5f) / width));
    }
    // One rectangle for neighbours of one colour: without blending there are as many as stops.
    for (auto first = columns.begin(); first != columns.end();) {
        auto const end = std::find_if(first, columns.end(), [&](nyxColor_rgba const& c) {
            return hexColor(c) != hexColor(*first) || c.a != first->a;
        });
        picture.rectangle({margin + static_cast<double>(first - columns.begin()), margin},
                          static_cast<double>(end - first), 48, *first);
        first = end;
    }
    for (ColorGradientStop const& stop : stops) {
        double const x = margin + width * static_cast<double>(stop.getLocation());
        picture.line({{x, 52}, {x, 60}}, ink::black);
        picture.circle({x, 66}, 6, stop.getColor());
    }
    picture.save(path);
}

constexpr Command table[] = {
    {"gradient make", "NAME", "make an empty gradient", make},
    {"gradient add", "GRADIENT LOCATION RGBA [slopes L R]", "add a stop", add},
    {"gradient replace", "GRADIENT INDEX LOCATION RGBA [slopes L R] [sort]", "overwrite a stop",
     replace},
    {"gradient blend", "GRADIENT on|off", "blend between stops or not", blend},
    {"gradient size", "GRADIENT N", "cut or extend the list of stops", size},
    {"gradient show", "GRADIENT", "list the stops", show},
    {"gradient save", "GRADIENT PATH", "draw it (.svg, .png); slopes are the renderer's", save},
};

} // namespace

Family gradientFamily() { return {"gradients", table}; }

} // namespace app
