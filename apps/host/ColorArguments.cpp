#include "host/ColorArguments.h"

#include "host/Host.h"
#include "host/idArgument.h"
#include "host/printable.h"
#include "host/sRGB.h"
#include "zsg/colors/ColorDB.h"
#include "zsg/core/ISceneGraph.h"

#include <algorithm>
#include <charconv>
#include <ostream>

namespace app {

namespace {

nyx::ColorId colorOf(Host& host, std::string const& word) {
    auto const& colors = host.renderer().colors();
    return idOf<nyx::ColorId>(
        word, "colour",
        [&](std::string const& name, nyx::ColorId id) {
            return id.isValid() && colors.record(id) ? id : colors.find(name);
        },
        [&] { return recordNames(colors); });
}

constexpr char waysToWrite[] =
    "a colour: #rrggbb[aa], rgb(r, g, b[, a]), three or four linear numbers, or the name of one";

bool isNumber(std::string const& word) {
    double value = 0;
    char const* const end = word.data() + word.size();
    auto const [last, error] = std::from_chars(word.data(), end, value);
    return error == std::errc() && last == end;
}

/// Whole numbers above 1 are meant as bytes, and taken for light they would be a lamp.
float takeLinear(Arguments& arguments, char const* expected) {
    bool const isWhole =
        !arguments.empty() && arguments.peek().find_first_not_of("0123456789") == std::string::npos;
    std::string const word = arguments.empty() ? std::string() : arguments.peek();
    double const value = arguments.real(expected);
    if (isWhole && value > 1) {
        throw CommandError("linear numbers go from 0 to 1; rgb(r, g, b) takes 0 to 255, and " +
                           word + ".0 is taken as it is");
    }
    return static_cast<float>(value);
}

/// The words up to the closing bracket, for blanks may stand in between.
std::string takeBracket(Arguments& arguments) {
    std::string text = arguments.word(waysToWrite);
    while (text.back() != ')' && !arguments.empty()) {
        text += ' ' + arguments.word(waysToWrite);
    }
    return text;
}

nyxColor_rgba fromBracket(std::string const& text) {
    std::string inside = text.substr(text.find('(') + 1);
    if (inside.empty() || inside.back() != ')') {
        throw CommandError("expected rgb(r, g, b[, a]), found \"" + text + "\"");
    }
    inside.pop_back();
    std::ranges::replace(inside, ',', ' ');
    Arguments parts(splitWords(inside));
    auto const part = [&parts](char const* expected, double most) {
        double const value = parts.real(expected);
        if (!(value >= 0 && value <= most)) {
            throw CommandError("expected " + std::string(expected));
        }
        return static_cast<float>(value / most);
    };
    nyxColor_rgba color{0, 0, 0, 1};
    for (float* const component : {&color.r, &color.g, &color.b}) {
        *component = linearFromEncoded(part("red, green and blue of 0 to 255", 255));
    }
    if (!parts.empty()) {
        color.a = part("an alpha of 0 to 1", 1);
    }
    parts.done();
    return color;
}

/// All ways but that of the linear numbers.
nyxColor_rgba takeWrittenColor(Host& host, Arguments& arguments) {
    if (!arguments.empty() &&
        (arguments.peek().starts_with("rgb(") || arguments.peek().starts_with("rgba("))) {
        return fromBracket(takeBracket(arguments));
    }
    std::string const word = arguments.word(waysToWrite);
    if (auto const color = colorFromHex(word)) {
        return *color;
    }
    nyx::ColorId const id =
        word.starts_with('=') ? colorOf(host, word) : host.renderer().colors().find(word);
    if (!host.renderer().colors().record(id)) {
        throw CommandError("expected " + std::string(waysToWrite) + "; found \"" + word + '"' +
                           didYouMean(word, recordNames(host.renderer().colors())));
    }
    return host.root().colorDB()->colorFromId(id).rgba();
}

} // namespace

nyx::ColorId takeColor(Host& host, Arguments& arguments, char const* expected) {
    return colorOf(host, arguments.word(expected));
}

nyx::ColorwayId takeColorway(Host& host, Arguments& arguments) {
    auto const& colorways = host.renderer().colorways();
    return idOf<nyx::ColorwayId>(
        arguments.word("a colorway"), "colorway",
        [&](std::string const& name, nyx::ColorwayId id) {
            return id.isValid() && colorways.record(id) ? id : colorways.find(name);
        },
        [&] { return recordNames(colorways); });
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

nyxColor_rgba takeRgba(Host& host, Arguments& arguments) {
    if (arguments.empty() || !isNumber(arguments.peek())) {
        return takeWrittenColor(host, arguments);
    }
    nyxColor const c = takeRgb(host, arguments);
    bool const hasAlpha = !arguments.empty() && isNumber(arguments.peek());
    return {c.r, c.g, c.b, hasAlpha ? takeLinear(arguments, "alpha") : 1};
}

nyxColor takeRgb(Host& host, Arguments& arguments) {
    if (arguments.empty() || !isNumber(arguments.peek())) {
        nyxColor_rgba const c = takeWrittenColor(host, arguments);
        return {c.r, c.g, c.b};
    }
    nyxColor c;
    c.r = takeLinear(arguments, "the red component");
    c.g = takeLinear(arguments, "the green component");
    c.b = takeLinear(arguments, "the blue component");
    return c;
}

std::string colorLine(Host& host, nyx::ColorId id) {
    ZColorExt const color = host.root().colorDB()->colorFromId(id);
    std::string line =
        std::to_string(id.toUint()) + ' ' + hexColorWithAlpha(color.rgba()) + ' ' +
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
