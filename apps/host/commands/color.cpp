#include "host/ColorArguments.h"
#include "host/Command.h"
#include "host/CommandResult.h"
#include "host/Host.h"
#include "host/Interruption.h"
#include "host/pictures/PictureFile.h"
#include "host/pictures/colorCards.h"
#include "host/printable.h"
#include "host/sRGB.h"
#include "zsg/colors/ColorController.h"
#include "zsg/colors/ColorDB.h"
#include "zsg/core/ISceneGraph.h"

#include <ostream>

namespace app {

namespace {

zsg::ColorDB& db(Host& host) { return *host.root().colorDB(); }

zsg::ColorController& controller(Host& host) { return *host.root().colorController(); }

constexpr int mostSteps = 100'000;

nlohmann::ordered_json colorResult(Host& host, nyx::ColorId id) {
    ZColorExt const color = db(host).colorFromId(id);
    nyxColor_rgba const c = color.rgba();
    nlohmann::ordered_json result = {{"id", id.toUint()},
                                     {"name", color.getColorName()},
                                     {"srgb", hexColorWithAlpha(c)},
                                     {"linear", {c.r, c.g, c.b, c.a}}};
    if (color.isMultiColor()) {
        auto& subs = result["subColors"] = nlohmann::ordered_json::array();
        for (int i = 0; i < color.nColors(); ++i) {
            subs.push_back({{"id", color.getSubColorId(i).toUint()},
                            {"name", color.getName(i)},
                            {"active", i == color.activeIndex()}});
        }
    }
    return result;
}

void printAll(Host& host, std::vector<nyx::ColorId> const& ids) {
    beginResultList(host);
    for (nyx::ColorId const id : ids) {
        host.out() << "  " << colorLine(host, id) << '\n';
        addResult(host, [&] { return colorResult(host, id); });
    }
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
    host.out() << "  " << colorLine(host, id) << "\n  linear " << c.r << ' ' << c.g << ' ' << c.b
               << ' ' << c.a << "\n  changes " << edit->revision()
               << (edit->isModified() ? ", not committed" : "") << "\n  references "
               << db(host).totalSceneReferenceCount(id) << '\n';
    giveResult(host, [&] {
        auto result = colorResult(host, id);
        result["changes"] = edit->revision();
        result["references"] = db(host).totalSceneReferenceCount(id);
        return result;
    });
    std::vector<nyx::ColorId> const subs(edit->subColors().begin(), edit->subColors().end());
    nyx::ColorId const active = edit->activeSub();
    for (nyx::ColorId const sub : subs) {
        host.out() << (sub == active ? "  * " : "    ") << colorLine(host, sub) << '\n';
    }
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
        auto const info = host.renderer().materials().record(material);
        host.out() << "  " << material.toUint() << ' ' << (info ? printable(info->name) : "")
                   << '\n';
    }
}

void unique(Host& host, Arguments& arguments) {
    std::string const wanted = arguments.word("a name");
    arguments.done();
    auto const name = db(host).findUniqueColorName(wanted, {}, nyxColor_extended::PlainColor);
    if (!name) {
        throw CommandError("there is no unique name");
    }
    host.out() << printable(*name) << '\n';
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

void set(Host& host, Arguments& arguments) {
    nyx::ColorId const id = takeColor(host, arguments);
    nyxColor_rgba const rgba = takeRgba(host, arguments);
    std::string const name = arguments.flag("name") ? arguments.word("a name") : std::string();
    auto const merge =
        arguments.flag("merge") ? zsg::AllowForwardUndoMerge::Yes : zsg::AllowForwardUndoMerge::No;
    arguments.done();
    controller(host).setColor(id, ZColor(rgba, name), merge);
}

void drag(Host& host, Arguments& arguments) {
    nyx::ColorId const id = takeColor(host, arguments);
    nyxColor_rgba const to = takeRgba(host, arguments);
    arguments.oneOf({"in"});
    int const steps = arguments.integer("a number of steps");
    arguments.done();
    if (steps < 1 || steps > mostSteps) {
        throw CommandError("expected 1 to " + std::to_string(mostSteps) + " steps");
    }
    nyxColor_rgba const from = host.root().colorDB()->getColorParameters(id)
                                   ? host.root().colorDB()->getColorParameters(id)->color()
                                   : nyxColor_rgba{};
    for (int i = 1; i <= steps; ++i) {
        endIfInterrupted();
        float const t = static_cast<float>(i) / static_cast<float>(steps);
        auto const mix = [t](float a, float b) { return a + (b - a) * t; };
        controller(host).setColor(
            id, ZColor(mix(from.r, to.r), mix(from.g, to.g), mix(from.b, to.b), mix(from.a, to.a)),
            i == steps ? zsg::AllowForwardUndoMerge::No : zsg::AllowForwardUndoMerge::Yes);
    }
}

void name(Host& host, Arguments& arguments) {
    nyx::ColorId const id = takeColor(host, arguments);
    std::string const text = arguments.word("a name");
    arguments.done();
    controller(host).setDisplayName(id, text);
}

void flags(Host& host, Arguments& arguments) {
    nyx::ColorId const id = takeColor(host, arguments);
    int const bits = arguments.integer("flag bits");
    bool const on = arguments.onOff();
    arguments.done();
    controller(host).setFlags(id, bits, on);
}

void toggle(Host& host, Arguments& arguments) {
    nyx::ColorId const id = takeColor(host, arguments);
    arguments.done();
    try {
        int const before = host.undoStack().index();
        nyx::ColorId const result = controller(host).toggleMultiColor(id);
        if (!result.isValid() && host.undoStack().index() != before) {
            host.out() << "  it is no multi-colour any more, and showed none that is left\n";
            return;
        }
        printColor(host, result, "nothing was changed");
    } catch (std::bad_optional_access const&) {
        throw CommandError("the colour has no name and there is none to be had");
    }
}

void link(Host& host, Arguments& arguments) {
    nyx::ColorId const from = takeColor(host, arguments);
    nyx::ColorId const to = takeColor(host, arguments);
    arguments.done();
    controller(host).linkColor(from, to);
}

void uses(Host& host, Arguments& arguments) {
    if (arguments.empty()) {
        host.out() << (controller(host).anyMultiColorInUse() ? "a multi-colour is in use"
                                                             : "no multi-colour is in use")
                   << '\n';
        return;
    }
    nyx::ColorId const id = takeColor(host, arguments);
    arguments.done();
    host.out() << controller(host).activeReferenceCount(id) << '\n';
}

void card(Host& host, Arguments& arguments) {
    PictureFile const file = PictureFile::take(host, arguments);
    arguments.done();
    file.write(paletteCard(host));
}

constexpr Command table[] = {
    {"color list", "[plain|multi|named]", "list colours", "color list multi", list},
    {"color show", "COLOR", "all about a colour", "color show SteelBlue", show},
    {"color find", "NAME", "look a name up", "color find Teal", find},
    {"color unique", "NAME", "find a name that no colour has", "color unique Teal", unique},
    {"color references", "COLOR", "count the places that use a colour", "color references Linen",
     references},
    {"color materials", "COLOR [direct|multi] [all]",
     "list the materials that use a colour, all: also those without objects",
     "color materials Upholstery direct", materials},
    {"color uses", "[COLOR]", "count the materials in use that use a colour", "color uses Linen",
     uses},
    {"color set", "COLOR RGBA [name NAME] [merge]",
     "set a value; merge: the next one joins this edit, whatever colour it sets",
     "color set Teal #00a0a0", set},
    {"color drag", "COLOR RGBA in STEPS", "set a value in steps that merge, as a picker does",
     "color drag Teal rgb(0, 120, 140) in 20", drag},
    {"color name", "COLOR NAME", "rename a colour", "color name Teal Petrol", name},
    {"color flags", "COLOR BITS on|off", "set or clear flags of a plain colour",
     "color flags Coral 8 on", flags},
    {"color toggle", "COLOR", "make a multi-colour of it, or one of its sub-colours",
     "color toggle Plum", toggle},
    {"color link", "FROM TO", "bind all materials that use FROM to TO", "color link Linen Ivory",
     link},
    {"color card", "PATH [dark]", "draw every colour with name, value and uses (.svg, .png)",
     "color card palette.svg", card},
};

} // namespace

Family colorFamily() { return {"colours: look at them and edit them", table}; }

} // namespace app
