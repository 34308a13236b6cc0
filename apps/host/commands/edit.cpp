// The colour controller and the linker: what can be undone.

#include "host/ColorArguments.h"
#include "host/Command.h"
#include "host/Host.h"

#include "zsg/colors/ColorController.h"
#include "zsg/colors/ColorDB.h"
#include "zsg/colors/IColorLinkHandler.h"
#include "zsg/core/ISceneGraph.h"

#include <ostream>

namespace app {

namespace {

constexpr int mostSteps = 100'000;

zsg::ColorController& controller(Host& host) { return *host.root().colorController(); }

void printId(Host& host, nyx::ColorId id) {
    if (!id.isValid()) {
        throw CommandError("nothing was changed");
    }
    host.out() << "  " << colorLine(host, id) << '\n';
}

void color(Host& host, Arguments& arguments) {
    nyx::ColorId const id = takeColor(host, arguments);
    nyxColor_rgba const rgba = takeRgba(arguments);
    std::string const name = arguments.flag("name") ? arguments.word("a name") : std::string();
    auto const merge =
        arguments.flag("last") ? zsg::AllowForwardUndoMerge::No : zsg::AllowForwardUndoMerge::Yes;
    arguments.done();
    controller(host).setColor(id, ZColor(rgba, name), merge);
}

void drag(Host& host, Arguments& arguments) {
    nyx::ColorId const id = takeColor(host, arguments);
    nyxColor_rgba const to = takeRgba(arguments);
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

void subNew(Host& host, Arguments& arguments) {
    nyx::ColorId const multi = takeColor(host, arguments, "a multi-colour");
    std::string const text = arguments.word("a name");
    nyxColor_rgba const rgba = takeRgba(arguments);
    int const index = arguments.flag("at") ? arguments.integer("a position") : -1;
    arguments.done();
    printId(host, controller(host).addSubColor(multi, ZColor(rgba, text), index));
}

void subCopies(Host& host, Arguments& arguments) {
    nyx::ColorId const multi = takeColor(host, arguments, "a multi-colour");
    std::vector<ZColor> values;
    for (nyx::ColorId const id : takeColors(host, arguments)) {
        values.push_back(ZColor(host.root().colorDB()->colorFromId(id)));
    }
    controller(host).addSubKColors(multi, values);
}

void subUse(Host& host, Arguments& arguments) {
    nyx::ColorId const multi = takeColor(host, arguments, "a multi-colour");
    nyx::ColorId const sub = takeColor(host, arguments, "a colour");
    bool const link = arguments.oneOf({"link", "copy"}) == "link";
    arguments.done();
    printId(host, controller(host).addOrSwitchSubColor(multi, sub, link));
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

void subAdd(Host& host, Arguments& arguments) {
    ListEdit const edit(host, arguments);
    controller(host).addSubColors(edit.multi, edit.colors, edit.index, edit.active);
}

void subMove(Host& host, Arguments& arguments) {
    ListEdit const edit(host, arguments);
    controller(host).moveSubColors(edit.multi, edit.colors, edit.index, edit.active);
}

void subSet(Host& host, Arguments& arguments) {
    nyx::ColorId const multi = takeColor(host, arguments, "a multi-colour");
    controller(host).setSubColors(multi, takeColors(host, arguments));
}

void subRemove(Host& host, Arguments& arguments) {
    nyx::ColorId const multi = takeColor(host, arguments, "a multi-colour");
    if (!controller(host).removeSubColors(multi, takeColors(host, arguments))) {
        throw CommandError("nothing was changed");
    }
}

void subSwitch(Host& host, Arguments& arguments) {
    nyx::ColorId const multi = takeColor(host, arguments, "a multi-colour");
    nyx::ColorId const sub = takeColor(host, arguments, "a sub-colour");
    arguments.done();
    controller(host).setActiveSubColor(multi, sub);
}

void subChange(Host& host, Arguments& arguments) {
    nyx::ColorId const multi = takeColor(host, arguments, "a multi-colour");
    nyx::ColorId const from = takeColor(host, arguments, "a sub-colour");
    nyx::ColorId const to = takeColor(host, arguments);
    arguments.done();
    controller(host).changeSubColor(multi, from, to);
}

void subUnlink(Host& host, Arguments& arguments) {
    nyx::ColorId const multi = takeColor(host, arguments, "a multi-colour");
    unsigned const index = arguments.number("a position");
    arguments.done();
    controller(host).unlinkSubColor(multi, index);
}

void toggle(Host& host, Arguments& arguments) {
    nyx::ColorId const id = takeColor(host, arguments);
    arguments.done();
    try {
        printId(host, controller(host).toggleMultiColor(id));
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

void colorwayCreate(Host& host, Arguments& arguments) {
    std::string const text = arguments.word("a name");
    nyx::ColorwayId const id = controller(host).createColorway(text, takePairs(host, arguments));
    if (!id.isValid()) {
        throw CommandError("no colorway could be made");
    }
    host.out() << "  " << id.toUint() << ' ' << text << '\n';
}

void colorwayApply(Host& host, Arguments& arguments) {
    nyx::ColorwayId const id = takeColorway(host, arguments);
    arguments.done();
    controller(host).applyColorway(id);
}

void colorwayName(Host& host, Arguments& arguments) {
    nyx::ColorwayId const id = takeColorway(host, arguments);
    std::string const text = arguments.word("a name");
    arguments.done();
    controller(host).setDisplayName(id, text);
}

void colorwaySet(Host& host, Arguments& arguments) {
    nyx::ColorwayId const id = takeColorway(host, arguments);
    controller(host).setColors(id, takePairs(host, arguments));
}

void colorwayAdd(Host& host, Arguments& arguments) {
    nyx::ColorwayId const id = takeColorway(host, arguments);
    int const index = arguments.integer("a position");
    bool const replace = arguments.oneOf({"replace", "keep"}) == "replace";
    controller(host).addColors(id, takePairs(host, arguments), index, replace);
}

void colorwayRemove(Host& host, Arguments& arguments) {
    nyx::ColorwayId const id = takeColorway(host, arguments);
    controller(host).removeMultiColors(id, takeColors(host, arguments));
}

void colorwayDelete(Host& host, Arguments& arguments) {
    nyx::ColorwayId const id = takeColorway(host, arguments);
    arguments.done();
    controller(host).setDeleted(id, true);
}

void colorwayRestore(Host& host, Arguments& arguments) {
    nyx::ColorwayId const id = takeColorway(host, arguments);
    arguments.done();
    controller(host).setDeleted(id, false);
}

/// Answers every conflict alike and says so.
class Answer final : public zsg::IColorLinkHandler {
public:
    Answer(Host& host, Resolution resolution) : host_(host), resolution_(resolution) {}

    Resolution resolveConflict(ZColorExt const& color, int index, nyx::ColorId existing) override {
        host_.out() << "  conflict: \"" << color.getName(index) << "\" is colour "
                    << existing.toUint()
                    << (resolution_ == Resolution::Link ? ", linked\n" : ", renamed\n");
        return resolution_;
    }

private:
    Host& host_;
    Resolution resolution_;
};

// NAME R G B [A], or NAME = ELEMENT R G B, ELEMENT R G B ... for a multi-colour.
ZColorExt takeForeign(Arguments& arguments) {
    std::string const text = arguments.word("a name");
    ZColorExt value;
    value.setColorName(text);
    std::vector<ZColorExt::ZColorWithId> elements;
    if (arguments.flag("=")) {
        value.setMultiColor(true);
        while (!arguments.empty()) {
            std::string const element = arguments.word("a name");
            elements.emplace_back(ZColor(takeRgba(arguments), element), nyx::ColorId());
        }
    } else {
        elements.emplace_back(ZColor(takeRgba(arguments), text), nyx::ColorId());
    }
    arguments.done();
    value.setColors(elements);
    return value;
}

void conflicts(Host& host, Arguments& arguments) {
    auto const found = controller(host).checkForConflict(takeForeign(arguments));
    for (zsg::IColorController::ColorConflict const& conflict : found) {
        host.out() << "  \"" << conflict.name << "\" is " << colorLine(host, conflict.existing)
                   << '\n';
    }
    host.out() << (found.empty() ? "  no conflict\n" : "");
}

void linkerImport(Host& host, Arguments& arguments) {
    bool const linkThem = arguments.oneOf({"link", "rename"}) == "link";
    ZColorExt value = takeForeign(arguments);
    Answer answer(host, linkThem ? zsg::IColorLinkHandler::Resolution::Link
                                 : zsg::IColorLinkHandler::Resolution::Rename);
    auto const linker = host.root().colorDB()->getColorLinker(&controller(host), &answer);
    printId(host, linker->importColor(value));
}

void linkerMerge(Host& host, Arguments& arguments) {
    nyx::ColorId const to = takeColor(host, arguments, "a multi-colour");
    nyx::ColorId const from = takeColor(host, arguments, "a multi-colour");
    arguments.done();
    host.root().colorDB()->getColorLinker(&controller(host), nullptr)->mergeSubColors(to, from);
}

constexpr Command table[] = {
    {"edit color", "COLOR R G B [A] [name NAME] [last]",
     "set a value; the next one merges unless this is the last", color},
    {"edit drag", "COLOR R G B [A] in STEPS", "set a value in steps that merge, as a picker does",
     drag},
    {"edit name", "COLOR NAME", "rename a colour", name},
    {"edit flags", "COLOR BITS on|off", "set or clear flags of a plain colour", flags},
    {"edit toggle", "COLOR", "make a multi-colour of it, or one of its sub-colours", toggle},
    {"edit link", "FROM TO", "bind all materials that use FROM to TO", link},
    {"edit uses", "[COLOR]", "count the materials in use that use a colour", uses},
    {"sub new", "MULTI NAME R G B [A] [at INDEX]", "add a new sub-colour", subNew},
    {"sub copy", "MULTI COLOR...", "add new sub-colours of these values", subCopies},
    {"sub use", "MULTI COLOR link|copy", "add a colour, or a copy, and make it active", subUse},
    {"sub add", "MULTI INDEX [active COLOR] COLOR...", "add colours at a position", subAdd},
    {"sub move", "MULTI INDEX [active SUB] SUB...", "move sub-colours to a position", subMove},
    {"sub set", "MULTI COLOR...", "replace all sub-colours", subSet},
    {"sub remove", "MULTI SUB...", "take sub-colours out", subRemove},
    {"sub switch", "MULTI SUB", "make a sub-colour the active one", subSwitch},
    {"sub change", "MULTI OLD NEW", "put a colour in the place of a sub-colour", subChange},
    {"sub unlink", "MULTI INDEX", "replace a sub-colour by a copy of its own", subUnlink},
    {"way create", "NAME MULTI:SUB...", "make a colorway", colorwayCreate},
    {"way apply", "COLORWAY", "switch to a colorway", colorwayApply},
    {"way name", "COLORWAY NAME", "rename a colorway", colorwayName},
    {"way set", "COLORWAY MULTI:SUB...", "replace what a colorway covers", colorwaySet},
    {"way add", "COLORWAY INDEX replace|keep MULTI:SUB...", "add to a colorway", colorwayAdd},
    {"way remove", "COLORWAY MULTI...", "take multi-colours out of a colorway", colorwayRemove},
    {"way delete", "COLORWAY", "mark a colorway as deleted", colorwayDelete},
    {"way restore", "COLORWAY", "bring a deleted colorway back", colorwayRestore},
    {"edit conflicts", "NAME R G B [A] | NAME = NAME R G B...",
     "list the colours in use that a foreign colour would overwrite", conflicts},
    {"linker import", "link|rename NAME R G B [A] | NAME = NAME R G B...",
     "bring a foreign colour or multi-colour in, settling conflicts", linkerImport},
    {"linker merge", "TO FROM", "add the sub-colours that TO lacks", linkerMerge},
};

} // namespace

Family editFamily() {
    return {"colours, multi-colours and colorways: changes that can be undone", table};
}

} // namespace app
