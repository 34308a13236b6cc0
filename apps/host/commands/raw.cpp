// What the colour database lets a program change past the undo stack.

#include "host/ColorArguments.h"
#include "host/Command.h"
#include "host/Host.h"
#include "zsg/colors/ColorDB.h"
#include "zsg/core/ISceneGraph.h"

#include "nyxrender/nyxRT_api.h"

#include <ostream>

namespace app {

namespace {

zsg::ColorDB& db(Host& host) { return *host.root().colorDB(); }

void createColor(Host& host, Arguments& arguments) {
    ZColorExt color;
    color.setColorName(arguments.word("a name"));
    nyxColor_rgba const rgba = takeRgba(host, arguments);
    arguments.done();
    ZColorExt::ZColorWithId const element(ZColor(rgba, color.getColorName()), nyx::ColorId());
    color.setColors({&element, 1});
    db(host).pushColor(color);
    printColor(host, color.getId(), "no colour could be made");
}

void createMulti(Host& host, Arguments& arguments) {
    std::string const name = arguments.word("a name");
    std::vector<nyx::ColorId> const subs = takeColors(host, arguments);
    ZColorExt color;
    color.setMultiColor(true);
    color.setColorName(name);
    std::vector<ZColorExt::ZColorWithId> elements;
    elements.reserve(subs.size());
    for (nyx::ColorId const sub : subs) {
        elements.emplace_back(ZColor(db(host).colorFromId(sub)), sub);
    }
    color.setColors(elements);
    db(host).pushColor(color);
    printColor(host, color.getId(), "no colour could be made");
}

void pushColor(Host& host, Arguments& arguments) {
    nyx::ColorId const id = takeColor(host, arguments);
    nyxColor_rgba const rgba = takeRgba(host, arguments);
    arguments.done();
    ZColorExt color = db(host).colorFromId(id);
    color.setColor(ZColor(rgba), ZColorExt::NameOp::Keep);
    db(host).pushColor(color);
}

void pushTemporary(Host& host, Arguments& arguments) {
    nyxColor_rgba const rgba = takeRgba(host, arguments);
    arguments.done();
    ZColorExt color(rgba.r, rgba.g, rgba.b, rgba.a);
    db(host).pushTempColor(color);
    printColor(host, color.getId(), "no colour could be made");
}

void clone(Host& host, Arguments& arguments) {
    nyx::ColorId const id = takeColor(host, arguments);
    bool const deep = arguments.flag("deep");
    arguments.done();
    printColor(host, deep ? db(host).cloneRecursively(id) : db(host).clone(id),
               "no colour could be made");
}

void wrap(Host& host, Arguments& arguments) {
    nyx::ColorId const id = takeColor(host, arguments);
    arguments.done();
    printColor(host, db(host).multiColorFromColor(id), "no colour could be made");
}

void switchSub(Host& host, Arguments& arguments) {
    nyx::ColorId const multi = takeColor(host, arguments, "a multi-colour");
    nyx::ColorId const sub = takeColor(host, arguments, "a sub-colour");
    arguments.done();
    db(host).setActiveSubColor({multi, sub});
}

void createColorway(Host& host, Arguments& arguments) {
    std::string const name = arguments.word("a name");
    std::vector<zsg::MultiColorPair> const pairs = takePairs(host, arguments);
    nyx::ColorwayId const id = db(host).createColorway();
    zsg::ZColorwayEdit* const edit = id.isValid() ? db(host).getColorwayParameters(id) : nullptr;
    if (!edit) {
        throw CommandError("no colorway could be made");
    }
    std::vector<nyx::ColorId> multis;
    std::vector<nyx::ColorId> subs;
    for (zsg::MultiColorPair const& pair : pairs) {
        multis.push_back(pair.multiColor);
        subs.push_back(pair.subColor);
    }
    edit->setDisplayName(name);
    edit->setPairs(multis, subs);
    db(host).pushColorway(id);
    host.out() << "  " << id.toUint() << ' ' << name << '\n';
}

void applyColorway(Host& host, Arguments& arguments) {
    nyx::ColorwayId const id = takeColorway(host, arguments);
    arguments.done();
    db(host).applyColorway(id);
}

void checkUnused(Host& host, Arguments& arguments) {
    nyx::ColorwayId const id = takeColorway(host, arguments);
    arguments.done();
    db(host).checkForUnusedMultiColors(id);
}

void pushColorway(Host& host, Arguments& arguments) {
    nyx::ColorwayId const id = takeColorway(host, arguments);
    arguments.done();
    db(host).pushColorway(id);
}

constexpr Command table[] = {
    {"raw color new", "NAME RGBA", "push a new colour", "raw color new Draft #808080", createColor},
    {"raw color push", "COLOR RGBA", "push a value", "raw color push Draft 0.5 0.5 0.5", pushColor},
    {"raw color temp", "RGBA", "push the temporary colour", "raw color temp #ff0000",
     pushTemporary},
    {"raw color copy", "COLOR [deep]", "make a copy, deep: of its sub-colours too",
     "raw color copy Upholstery deep", clone},
    {"raw color wrap", "COLOR", "make a multi-colour that holds it", "raw color wrap Draft", wrap},
    {"raw multi new", "NAME SUB...", "push a new multi-colour", "raw multi new Pair Draft Teal",
     createMulti},
    {"raw multi switch", "MULTI SUB", "make a sub-colour the active one",
     "raw multi switch Pair Teal", switchSub},
    {"raw colorway new", "NAME MULTI:SUB...", "make a colorway",
     "raw colorway new Draft Upholstery:Linen", createColorway},
    {"raw colorway apply", "COLORWAY", "switch to it", "raw colorway apply Studio", applyColorway},
    {"raw colorway unused", "COLORWAY", "take multi-colours out that nothing uses (not committed)",
     "raw colorway unused Nordic", checkUnused},
    {"raw colorway push", "COLORWAY", "commit what was changed", "raw colorway push Nordic",
     pushColorway},
};

} // namespace

Family rawFamily() { return {"changes past the undo stack", table}; }

} // namespace app
