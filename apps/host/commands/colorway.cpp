// The colorways of the colour database: read, and changed without undo.

#include "host/ColorArguments.h"
#include "host/Command.h"
#include "host/Host.h"

#include "zsg/colors/ColorDB.h"
#include "zsg/core/ISceneGraph.h"

#include <ostream>

namespace app {

namespace {

zsg::ColorDB& db(Host& host) { return *host.root().colorDB(); }

void list(Host& host, Arguments&) {
    auto const span = db(host).colorways();
    std::vector<nyx::ColorwayId> const ids(span.begin(), span.end());
    for (nyx::ColorwayId const id : ids) {
        if (zsg::ZColorwayEdit const* const edit = db(host).getColorwayParameters(id)) {
            host.out() << (edit->isActive() ? "  * " : "    ") << id.toUint() << ' '
                       << edit->displayName() << ", " << edit->multiColors().size()
                       << " multi-colours" << (edit->isDeleted() ? ", deleted" : "") << '\n';
        }
    }
}

void show(Host& host, Arguments& arguments) {
    nyx::ColorwayId const id = takeColorway(host, arguments);
    arguments.done();
    zsg::ZColorwayEdit const* const edit = db(host).getColorwayParameters(id);
    if (!edit) {
        throw CommandError("the colorway has no record");
    }
    std::vector<nyx::ColorId> const multis(edit->multiColors().begin(), edit->multiColors().end());
    std::vector<nyx::ColorId> const subs(edit->activeSubIndices().begin(),
                                         edit->activeSubIndices().end());
    host.out() << "  " << edit->displayName() << (edit->isActive() ? ", active" : "")
               << (edit->isDeleted() ? ", deleted" : "") << '\n';
    for (std::size_t i = 0; i < multis.size(); ++i) {
        host.out() << "    " << db(host).colorFromId(multis[i]).getColorName() << ": "
                   << colorLine(host, subs[i]) << '\n';
    }
}

void create(Host& host, Arguments& arguments) {
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

void apply(Host& host, Arguments& arguments) {
    nyx::ColorwayId const id = takeColorway(host, arguments);
    arguments.done();
    db(host).applyColorway(id);
}

void active(Host& host, Arguments&) {
    nyx::ColorwayId const id = db(host).activeColorwayId();
    host.out() << (id.isValid() ? std::to_string(id.toUint()) + ' ' + db(host).activeColorwayName()
                                : std::string("none"))
               << '\n';
}

void unused(Host& host, Arguments& arguments) {
    nyx::ColorwayId const id = takeColorway(host, arguments);
    arguments.done();
    db(host).checkForUnusedMultiColors(id);
}

void push(Host& host, Arguments& arguments) {
    nyx::ColorwayId const id = takeColorway(host, arguments);
    arguments.done();
    db(host).pushColorway(id);
}

void rendererActivates(Host& host, Arguments& arguments) {
    nyx::ColorwayId const id = takeColorway(host, arguments);
    arguments.done();
    if (!host.renderer().activateColorway(id)) {
        throw CommandError("the renderer has no such colorway");
    }
}

constexpr Command table[] = {
    {"colorway list", "", "list colorways, * marks the active one", list},
    {"colorway show", "COLORWAY", "show what it makes of each multi-colour", show},
    {"colorway create", "NAME MULTI:SUB...", "make a colorway (no undo)", create},
    {"colorway apply", "COLORWAY", "switch to it (no undo)", apply},
    {"colorway active", "", "show the active one", active},
    {"colorway unused", "COLORWAY", "take multi-colours out that nothing uses (not committed)",
     unused},
    {"colorway push", "COLORWAY", "commit what was changed", push},
    {"renderer colorway", "COLORWAY", "switch to it on the renderer's side", rendererActivates},
};

} // namespace

Family colorwayFamily() { return {"colorways: look at them, and change them without undo", table}; }

} // namespace app
