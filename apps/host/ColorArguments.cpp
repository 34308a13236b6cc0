#include "host/ColorArguments.h"

#include "host/Host.h"
#include "host/idArgument.h"
#include "host/printable.h"

#include "zsg/colors/ColorDB.h"
#include "zsg/core/ISceneGraph.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ostream>

namespace app {

namespace {

nyx::ColorId colorOf(Host& host, std::string const& word) {
    return idOf<nyx::ColorId>(word, "colour", [&](std::string const& name, nyx::ColorId id) {
        return id.isValid() && host.renderer().colors().record(id)
                   ? id
                   : host.renderer().colors().find(name);
    });
}

int component(float value) {
    // Through a comparison that a NaN fails.
    float const clamped = value > 0 ? std::min(value, 1.0f) : 0.0f;
    return static_cast<int>(std::lround(clamped * 255.0f));
}

} // namespace

nyx::ColorId takeColor(Host& host, Arguments& arguments, char const* expected) {
    return colorOf(host, arguments.word(expected));
}

nyx::ColorwayId takeColorway(Host& host, Arguments& arguments) {
    return idOf<nyx::ColorwayId>(arguments.word("a colorway"), "colorway",
                                 [&](std::string const& name, nyx::ColorwayId id) {
                                     return id.isValid() && host.renderer().colorways().record(id)
                                                ? id
                                                : host.renderer().colorways().find(name);
                                 });
}

std::vector<nyx::ColorId> takeColors(Host& host, Arguments& arguments) {
    std::vector<nyx::ColorId> ids;
    for (std::string const& word : arguments.rest()) {
        ids.push_back(colorOf(host, word));
    }
    return ids;
}

std::vector<zsg::MultiColorPair> takePairs(Host& host, Arguments& arguments) {
    std::vector<zsg::MultiColorPair> pairs;
    for (std::string const& word : arguments.rest()) {
        std::size_t const colon = word.find(':');
        if (colon == std::string::npos) {
            throw CommandError("expected MULTI:SUB, found \"" + word + "\"");
        }
        pairs.push_back(
            {colorOf(host, word.substr(0, colon)), colorOf(host, word.substr(colon + 1))});
    }
    return pairs;
}

nyxColor_rgba takeRgba(Arguments& arguments) {
    nyxColor_rgba color{0, 0, 0, 1};
    color.r = static_cast<float>(arguments.real("the red component"));
    color.g = static_cast<float>(arguments.real("the green component"));
    color.b = static_cast<float>(arguments.real("the blue component"));
    if (!arguments.empty() &&
        arguments.peek().find_first_not_of("0123456789.-+e") == std::string::npos) {
        color.a = static_cast<float>(arguments.real("alpha"));
    }
    return color;
}

std::string hexColor(nyxColor_rgba const& color) {
    char text[32];
    std::snprintf(text, sizeof text, "#%02x%02x%02x", component(color.r), component(color.g),
                  component(color.b));
    return text;
}

std::string colorLine(Host& host, nyx::ColorId id) {
    ZColorExt const color = host.root().colorDB()->colorFromId(id);
    std::string line =
        std::to_string(id.toUint()) + ' ' + hexColor(color.rgba()) + ' ' +
        (color.getColorName().empty() ? "(unnamed)" : printable(color.getColorName()));
    if (color.isMultiColor()) {
        line += " [";
        for (int i = 0; i < color.nColors(); ++i) {
            line += (i == 0 ? "" : " ") + std::string(i == color.activeIndex() ? "*" : "") +
                    printable(color.getName(i));
        }
        line += ']';
    }
    return line;
}

void printColor(Host& host, nyx::ColorId id, char const* failure) {
    if (!id.isValid()) {
        throw CommandError(failure);
    }
    host.out() << "  " << colorLine(host, id) << '\n';
}

} // namespace app
