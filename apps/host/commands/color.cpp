// The colour database: what can be read, and what is changed without undo.

#include "host/ColorArguments.h"
#include "host/Command.h"
#include "host/Host.h"

#include "nyxrender/nyxRT_api.h"
#include "zsg/colors/ColorDB.h"
#include "zsg/core/ISceneGraph.h"

#include <ostream>

namespace app {

namespace {

zsg::ColorDB& db(Host& host) { return *host.root().colorDB(); }

void printAll(Host& host, std::vector<nyx::ColorId> const& ids) {
    for (nyx::ColorId const id : ids) {
        host.out() << "  " << colorLine(host, id) << '\n';
    }
}

void printNew(Host& host, nyx::ColorId id) {
    if (!id.isValid()) {
        throw CommandError("no colour could be made");
    }
    host.out() << "  " << colorLine(host, id) << '\n';
}

void list(Host& host, Arguments& arguments) {
    std::string const which =
        arguments.empty() ? "plain" : arguments.oneOf({"plain", "multi", "named"});
    arguments.done();
    if (which == "named") {
        return printAll(host, db(host).namedColors());
    }
    auto const span = which == "plain" ? db(host).colors() : db(host).multiColors();
    printAll(host, std::vector<nyx::ColorId>(span.begin(), span.end()));
}

void show(Host& host, Arguments& arguments) {
    nyx::ColorId const id = takeColor(host, arguments);
    arguments.done();
    zsg::ZColorExtEdit const* const edit = db(host).getColorParameters(id);
    if (!edit) {
        throw CommandError("the colour has no record");
    }
    nyxColor_rgba const c = edit->color();
    host.out() << "  " << colorLine(host, id) << "\n  value " << c.r << ' ' << c.g << ' ' << c.b
               << ' ' << c.a << "\n  changes " << edit->revision()
               << (edit->isModified() ? ", not committed" : "") << "\n  references "
               << db(host).totalSceneReferenceCount(id) << '\n';
    std::vector<nyx::ColorId> const subs(edit->subColors().begin(), edit->subColors().end());
    nyx::ColorId const active = edit->activeSub();
    for (nyx::ColorId const sub : subs) {
        host.out() << (sub == active ? "  * " : "    ") << colorLine(host, sub) << '\n';
    }
}

void create(Host& host, Arguments& arguments) {
    ZColorExt color;
    color.setColorName(arguments.word("a name"));
    nyxColor_rgba const rgba = takeRgba(arguments);
    arguments.done();
    ZColorExt::ZColorWithId const element(ZColor(rgba, color.getColorName()), nyx::ColorId());
    color.setColors({&element, 1});
    db(host).pushColor(color);
    printNew(host, color.getId());
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
    printNew(host, color.getId());
}

void pushValue(Host& host, Arguments& arguments) {
    nyx::ColorId const id = takeColor(host, arguments);
    nyxColor_rgba const rgba = takeRgba(arguments);
    arguments.done();
    ZColorExt color = db(host).colorFromId(id);
    color.setColor(ZColor(rgba), ZColorExt::NameOp::Keep);
    db(host).pushColor(color);
}

void pushTemp(Host& host, Arguments& arguments) {
    nyxColor_rgba const rgba = takeRgba(arguments);
    arguments.done();
    ZColorExt color(rgba.r, rgba.g, rgba.b, rgba.a);
    db(host).pushTempColor(color);
    printNew(host, color.getId());
}

void clone(Host& host, Arguments& arguments) {
    nyx::ColorId const id = takeColor(host, arguments);
    bool const deep = arguments.flag("deep");
    arguments.done();
    printNew(host, deep ? db(host).cloneRecursively(id) : db(host).clone(id));
}

void wrap(Host& host, Arguments& arguments) {
    nyx::ColorId const id = takeColor(host, arguments);
    arguments.done();
    printNew(host, db(host).multiColorFromColor(id));
}

void switchSub(Host& host, Arguments& arguments) {
    nyx::ColorId const multi = takeColor(host, arguments, "a multi-colour");
    nyx::ColorId const sub = takeColor(host, arguments, "a sub-colour");
    arguments.done();
    db(host).setActiveSubColor({multi, sub});
}

void references(Host& host, Arguments& arguments) {
    nyx::ColorId const id = takeColor(host, arguments);
    arguments.done();
    host.out() << db(host).totalSceneReferenceCount(id) << '\n';
}

void materials(Host& host, Arguments& arguments) {
    nyx::ColorId const id = takeColor(host, arguments);
    unsigned how = 3;
    if (!arguments.empty() && arguments.peek() != "all") {
        how = arguments.oneOf({"direct", "multi"}) == "direct" ? 1 : 2;
    }
    bool const all = arguments.flag("all");
    arguments.done();
    for (nyx::MaterialId const material : db(host).getMaterialsUsingColor(id, how, all)) {
        auto const info = host.renderer().material(material);
        host.out() << "  " << material.toUint() << ' ' << (info ? info->name : "") << '\n';
    }
}

void unique(Host& host, Arguments& arguments) {
    std::string const wanted = arguments.word("a name");
    arguments.done();
    auto const name = db(host).findUniqueColorName(wanted, {}, nyxColor_extended::PlainColor);
    if (!name) {
        throw CommandError("there is no unique name");
    }
    host.out() << *name << '\n';
}

void find(Host& host, Arguments& arguments) {
    std::string const name = arguments.word("a name");
    arguments.done();
    auto const lock = db(host).createRtApiLock();
    auto const print = [&](char const* what, auto id) {
        host.out() << "  " << what << ' '
                   << (id.isValid() ? std::to_string(id.toUint()) : std::string("none")) << '\n';
    };
    print("colour in use", db(host).colorFromName(*lock, name));
    print("multi-colour", db(host).multiColorFromName(*lock, name));
    print("colorway", db(host).colorwayFromName(*lock, name));
}

void rendererSets(Host& host, Arguments& arguments) {
    nyx::ColorId const id = takeColor(host, arguments);
    nyxColor_rgba const rgba = takeRgba(arguments);
    arguments.done();
    host.renderer().changeColor(id, rgba);
}

void rendererRemoves(Host& host, Arguments& arguments) {
    nyx::ColorId const id = takeColor(host, arguments);
    arguments.done();
    host.renderer().removeColor(id);
}

constexpr Command table[] = {
    {"color list", "[plain|multi|named]", "list colours", list},
    {"color show", "COLOR", "all about a colour", show},
    {"color create", "NAME R G B [A]", "push a new colour (no undo)", create},
    {"color create-multi", "NAME SUB...", "push a new multi-colour (no undo)", createMulti},
    {"color push", "COLOR R G B [A]", "push a value (no undo)", pushValue},
    {"color temp", "R G B [A]", "push the temporary colour", pushTemp},
    {"color clone", "COLOR [deep]", "make a copy, deep: of its sub-colours too (no undo)", clone},
    {"color wrap", "COLOR", "make a multi-colour that holds it (no undo)", wrap},
    {"color switch", "MULTI SUB", "make a sub-colour the active one (no undo)", switchSub},
    {"color references", "COLOR", "count the places that use a colour", references},
    {"color materials", "COLOR [direct|multi] [all]",
     "list the materials that use a colour, all: also those without objects", materials},
    {"color unique", "NAME", "find a name that no colour has", unique},
    {"color find", "NAME", "look a name up", find},
    {"renderer color", "COLOR R G B [A]", "change a value on the renderer's side", rendererSets},
    {"renderer remove", "COLOR", "take a record away on the renderer's side", rendererRemoves},
};

} // namespace

Family colorFamily() { return {"colours: look at them, and change them without undo", table}; }

} // namespace app
