#include "host/ColorArguments.h"
#include "host/Command.h"
#include "host/Host.h"
#include "host/pictures/PictureFile.h"
#include "host/pictures/colorCards.h"
#include "zsg/colors/ColorController.h"
#include "zsg/colors/ColorDB.h"
#include "zsg/core/ISceneGraph.h"

namespace app {

namespace {

zsg::ColorController& controller(Host& host) { return *host.root().colorController(); }

void addNew(Host& host, Arguments& arguments) {
    nyx::ColorId const multi = takeColor(host, arguments, "a multi-colour");
    std::string const text = arguments.word("a name");
    nyxColor_rgba const rgba = takeRgba(host, arguments);
    int const index = arguments.flag("at") ? arguments.integer("a position") : -1;
    arguments.done();
    printColor(host, controller(host).addSubColor(multi, ZColor(rgba, text), index),
               "nothing was changed");
}

void copies(Host& host, Arguments& arguments) {
    nyx::ColorId const multi = takeColor(host, arguments, "a multi-colour");
    std::vector<ZColor> values;
    for (nyx::ColorId const id : takeColors(host, arguments)) {
        values.push_back(ZColor(host.root().colorDB()->colorFromId(id)));
    }
    controller(host).addSubKColors(multi, values);
}

void use(Host& host, Arguments& arguments) {
    nyx::ColorId const multi = takeColor(host, arguments, "a multi-colour");
    nyx::ColorId const sub = takeColor(host, arguments, "a colour");
    bool const link = arguments.oneOf({"link", "copy"}) == "link";
    arguments.done();
    printColor(host, controller(host).addOrSwitchSubColor(multi, sub, link), "nothing was changed");
}

/// MULTI INDEX [active SUB] COLOR...
struct ListEdit {
    nyx::ColorId multi;
    int index = 0;
    nyx::ColorId active;
    std::vector<nyx::ColorId> colors;

    ListEdit(Host& host, Arguments& arguments)
        : multi(takeColor(host, arguments, "a multi-colour")),
          index(arguments.integer("a position")) {
        if (arguments.flag("active")) {
            active = takeColor(host, arguments);
        }
        colors = takeColors(host, arguments);
    }
};

void add(Host& host, Arguments& arguments) {
    ListEdit const edit(host, arguments);
    controller(host).addSubColors(edit.multi, edit.colors, edit.index, edit.active);
}

void move(Host& host, Arguments& arguments) {
    ListEdit const edit(host, arguments);
    controller(host).moveSubColors(edit.multi, edit.colors, edit.index, edit.active);
}

void set(Host& host, Arguments& arguments) {
    nyx::ColorId const multi = takeColor(host, arguments, "a multi-colour");
    controller(host).setSubColors(multi, takeColors(host, arguments));
}

void remove(Host& host, Arguments& arguments) {
    nyx::ColorId const multi = takeColor(host, arguments, "a multi-colour");
    if (!controller(host).removeSubColors(multi, takeColors(host, arguments))) {
        throw CommandError("nothing was changed");
    }
}

void switchTo(Host& host, Arguments& arguments) {
    nyx::ColorId const multi = takeColor(host, arguments, "a multi-colour");
    nyx::ColorId const sub = takeColor(host, arguments, "a sub-colour");
    arguments.done();
    controller(host).setActiveSubColor(multi, sub);
}

void change(Host& host, Arguments& arguments) {
    nyx::ColorId const multi = takeColor(host, arguments, "a multi-colour");
    nyx::ColorId const from = takeColor(host, arguments, "a sub-colour");
    nyx::ColorId const to = takeColor(host, arguments);
    arguments.done();
    controller(host).changeSubColor(multi, from, to);
}

void unlink(Host& host, Arguments& arguments) {
    nyx::ColorId const multi = takeColor(host, arguments, "a multi-colour");
    unsigned const index = arguments.number("a position");
    arguments.done();
    controller(host).unlinkSubColor(multi, index);
}

void card(Host& host, Arguments& arguments) {
    PictureFile const file = PictureFile::take(host, arguments);
    arguments.done();
    file.write(multiColorCard(host));
}

constexpr Command table[] = {
    {"multi new", "MULTI NAME RGBA [at INDEX]", "add a new sub-colour",
     "multi new Upholstery Sky #87ceeb at 0", addNew},
    {"multi copy", "MULTI COLOR...", "add new sub-colours of these values",
     "multi copy Upholstery Wheat Tan", copies},
    {"multi use", "MULTI COLOR link|copy", "add a colour, or a copy, and make it active",
     "multi use Upholstery Gold link", use},
    {"multi add", "MULTI INDEX [active COLOR] COLOR...", "add colours at a position",
     "multi add Upholstery 1 active Teal Teal Plum", add},
    {"multi move", "MULTI INDEX [active SUB] SUB...", "move sub-colours to a position",
     "multi move Upholstery 0 Linen DimGray", move},
    {"multi set", "MULTI COLOR...", "replace all sub-colours", "multi set Frame Black White", set},
    {"multi remove", "MULTI SUB...", "take sub-colours out", "multi remove Upholstery Gold",
     remove},
    {"multi switch", "MULTI SUB", "make a sub-colour the active one",
     "multi switch Upholstery Linen", switchTo},
    {"multi change", "MULTI OLD NEW", "put a colour in the place of a sub-colour",
     "multi change Upholstery Sienna Peru", change},
    {"multi unlink", "MULTI INDEX", "replace a sub-colour by a copy of its own",
     "multi unlink Frame 0", unlink},
    {"multi card", "PATH [dark]", "draw every multi-colour with its sub-colours (.svg, .png)",
     "multi card multi-colours.svg", card},
};

} // namespace

Family multiFamily() { return {"multi-colours: edit their lists of sub-colours", table}; }

} // namespace app
