#include "host/Command.h"
#include "host/InputFile.h"
#include "host/NamedValues.h"
#include "host/OutputFile.h"
#include "host/pictures/PictureFile.h"
#include "host/pictures/weaveDraft.h"
#include "host/printedBy.h"
#include "host/valueResult.h"
#include "zsg/values/WeavePattern.h"

#include "nyxrender/WeavePattern.h"

namespace app {

namespace {

using zsg::WeavePattern;

constexpr int largestSide = 4096;

WeavePattern& take(Host& host, Arguments& arguments) {
    return takeNamed<WeavePattern>(host, arguments, "a weave");
}

int side(Arguments& arguments, char const* expected) {
    int const n = arguments.integer(expected);
    if (n < 1 || n > largestSide) {
        throw CommandError("expected " + std::string(expected) + " of 1 to " +
                           std::to_string(largestSide));
    }
    return n;
}

WeavePattern::YarnType yarn(Arguments& arguments) {
    return arguments.oneOf({"warp", "weft"}) == "warp" ? WeavePattern::Warp : WeavePattern::Weft;
}

WeavePattern takeWeave(Arguments& arguments) {
    std::string const kind =
        arguments.oneOf({"plain", "twill", "satin", "basket", "herringbone", "empty"});
    if (kind == "plain") {
        return WeavePattern::makePlain();
    }
    if (kind == "twill") {
        int const n = side(arguments, "a repeat");
        return WeavePattern::makeTwill(n, arguments.integer("a band width"));
    }
    if (kind == "satin") {
        int const n = side(arguments, "a repeat");
        return WeavePattern::makeSatin(n, arguments.integer("a step"));
    }
    if (kind == "basket") {
        return WeavePattern::makeBasket(side(arguments, "a block size"));
    }
    if (kind == "herringbone") {
        return WeavePattern::makeHerringbone();
    }
    WeavePattern weave;
    int const columns = side(arguments, "a number of warps");
    weave.setSize(columns, side(arguments, "a number of wefts"));
    return weave;
}

void make(Host& host, Arguments& arguments) {
    std::string const name = arguments.word("a name");
    WeavePattern const weave = takeWeave(arguments);
    arguments.done();
    keepNamed(host, name, weave);
}

void show(Host& host, Arguments& arguments) {
    WeavePattern const& weave = take(host, arguments);
    arguments.done();
    for (int y = 0; y < weave.numWeft(); ++y) {
        host.out() << "  ";
        for (int x = 0; x < weave.numWarp(); ++x) {
            host.out() << (weave.get(x, y) == WeavePattern::Warp ? "##" : "..");
        }
        host.out() << '\n';
    }
    for (auto const type : {WeavePattern::Warp, WeavePattern::Weft}) {
        host.out() << (type == WeavePattern::Warp ? "  warp" : "  weft") << " width "
                   << weave.width(type) << ", tension " << weave.tension(type) << ", "
                   << (weave.kind(type) == WeavePattern::Round ? "round" : "ribbon") << '\n';
    }
    giveResult(host, [&] { return valueResult(weave); });
}

void set(Host& host, Arguments& arguments) {
    WeavePattern& weave = take(host, arguments);
    int const x = arguments.integer("a column");
    int const y = arguments.integer("a row");
    auto const type = yarn(arguments);
    arguments.done();
    weave.set(x, y, type);
}

void flip(Host& host, Arguments& arguments) {
    WeavePattern& weave = take(host, arguments);
    int const x = arguments.integer("a column");
    int const y = arguments.integer("a row");
    arguments.done();
    weave.flip(x, y);
}

void invert(Host& host, Arguments& arguments) {
    WeavePattern& weave = take(host, arguments);
    arguments.done();
    weave.invert();
}

void size(Host& host, Arguments& arguments) {
    WeavePattern& weave = take(host, arguments);
    int const columns = side(arguments, "a number of warps");
    int const rows = side(arguments, "a number of wefts");
    arguments.done();
    weave.setSize(columns, rows);
}

void setYarn(Host& host, Arguments& arguments) {
    WeavePattern& weave = take(host, arguments);
    auto const type = yarn(arguments);
    std::string const what = arguments.oneOf({"width", "tension", "kind"});
    if (what == "kind") {
        bool const round = arguments.oneOf({"round", "ribbon"}) == "round";
        arguments.done();
        weave.setKind(type, round ? WeavePattern::Round : WeavePattern::Ribbon);
        return;
    }
    auto const value = static_cast<float>(arguments.real("a number"));
    arguments.done();
    if (what == "width") {
        weave.setWidth(type, value);
    } else {
        weave.setTension(type, value);
    }
}

void json(Host& host, Arguments& arguments) {
    WeavePattern const& weave = take(host, arguments);
    arguments.done();
    host.out() << weave.toJson().toStdString() << '\n';
}

void read(Host& host, Arguments& arguments) {
    std::string const name = arguments.word("a name");
    std::string const path = arguments.word("a path");
    arguments.done();
    std::string const text = readInputFile(path, largestWeave);
    WeavePattern weave;
    try {
        if (!weave.setFromJson(QString::fromStdString(text))) {
            throw CommandError(path + ": is no weave pattern");
        }
    } catch (CommandError const&) {
        throw;
    } catch (std::exception const& error) {
        throw CommandError(path + ": " + error.what());
    }
    keepNamed(host, name, weave);
}

void preset(Host& host, Arguments& arguments) {
    WeavePattern const& weave = take(host, arguments);
    arguments.done();
    host.out() << printedBy([&] { weave.printPreset(); }) << '\n';
}

void hash(Host& host, Arguments& arguments) {
    WeavePattern const& weave = take(host, arguments);
    arguments.done();
    host.out() << std::hex << weave.hash() << std::dec << '\n';
}

void equal(Host& host, Arguments& arguments) {
    WeavePattern const& a = take(host, arguments);
    WeavePattern const& b = take(host, arguments);
    arguments.done();
    host.out() << (a.equals(b) ? "equal\n" : "different\n");
}

void save(Host& host, Arguments& arguments) {
    WeavePattern const& weave = take(host, arguments);
    PictureFile const file = PictureFile::take(host, arguments);
    arguments.done();
    if (file.path.ends_with(".json") && !file.dark) {
        return writeOutputFile(file.path, weave.toJson().toStdString(), file.failingStep);
    }
    file.write(weaveDraft(weave));
}

constexpr Command table[] = {
    {"weave list", "", "list the names", "weave list", listNamed<WeavePattern>},
    {"weave new", "NAME plain|twill N K|satin N STEP|basket N|herringbone|empty W H",
     "make a weave", "weave new denim twill 4 3", make},
    {"weave show", "WEAVE", "draw it: ## warp on top, .. weft on top", "weave show denim", show},
    {"weave set", "WEAVE X Y warp|weft", "set a crossing", "weave set denim 0 0 weft", set},
    {"weave flip", "WEAVE X Y", "turn a crossing over", "weave flip denim 1 0", flip},
    {"weave invert", "WEAVE", "turn all crossings over", "weave invert denim", invert},
    {"weave size", "WEAVE W H", "repeat or crop it", "weave size denim 8 8", size},
    {"weave yarn", "WEAVE warp|weft width|tension|kind VALUE", "change a yarn",
     "weave yarn denim warp tension 0.7", setYarn},
    {"weave json", "WEAVE", "print its JSON text", "weave json denim", json},
    {"weave load", "NAME PATH", "read a JSON text",
     "weave load twill examples/scripts/pictures/weave-twill.json", read},
    {"weave preset", "WEAVE", "print it as source text", "weave preset denim", preset},
    {"weave hash", "WEAVE", "print its hash", "weave hash denim", hash},
    {"weave equal", "WEAVE WEAVE", "compare two", "weave equal denim twill", equal},
    {"weave save", "WEAVE PATH [dark]", "write a draft (.svg, .png) or its text (.json)",
     "weave save denim denim.svg", save},
    {"weave delete", "WEAVE", "forget it", "weave delete twill", deleteNamed<WeavePattern>},
};

} // namespace

Family weaveFamily() { return {"weaves", table}; }

} // namespace app
