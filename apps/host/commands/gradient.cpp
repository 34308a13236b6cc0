#include "host/ColorArguments.h"
#include "host/Command.h"
#include "host/NamedValues.h"
#include "host/pictures/PictureFile.h"
#include "host/pictures/gradientStrip.h"
#include "host/sRGB.h"
#include "host/valueResult.h"
#include "zsg/values/ColorGradient.h"

#include <ostream>

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

/// LOCATION RGBA [slopes LEFT RIGHT]
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
    giveResult(host, [&] { return valueResult(gradient); });
}

void save(Host& host, Arguments& arguments) {
    ColorGradient const& gradient = take(host, arguments);
    PictureFile const file = PictureFile::take(host, arguments);
    arguments.done();
    file.write(gradientStrip(gradient));
}

constexpr Command table[] = {
    {"gradient list", "", "list the names", "gradient list", listNamed<ColorGradient>},
    {"gradient new", "NAME", "make an empty gradient", "gradient new dusk", make},
    {"gradient add", "GRADIENT LOCATION RGBA [slopes L R]", "add a stop",
     "gradient add dusk 0 #ff9933 slopes 0 1", add},
    {"gradient set", "GRADIENT INDEX LOCATION RGBA [slopes L R] [sort]", "overwrite a stop",
     "gradient set dusk 0 0.1 Gold sort", replace},
    {"gradient blend", "GRADIENT on|off", "blend between stops or not", "gradient blend dusk on",
     blend},
    {"gradient size", "GRADIENT N", "cut or extend the list of stops", "gradient size dusk 2",
     size},
    {"gradient show", "GRADIENT", "list the stops", "gradient show dusk", show},
    {"gradient save", "GRADIENT PATH [dark]", "draw it (.svg, .png); slopes are the renderer's",
     "gradient save dusk dusk.svg", save},
    {"gradient delete", "GRADIENT", "forget it", "gradient delete dusk",
     deleteNamed<ColorGradient>},
};

} // namespace

Family gradientFamily() { return {"gradients", table}; }

} // namespace app
