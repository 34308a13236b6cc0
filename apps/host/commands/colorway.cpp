#include "host/ColorArguments.h"
#include "host/Command.h"
#include "host/CommandResult.h"
#include "host/Host.h"
#include "host/counted.h"
#include "host/pictures/PictureFile.h"
#include "host/pictures/colorCards.h"
#include "host/printable.h"
#include "zsg/colors/ColorController.h"
#include "zsg/colors/ColorDB.h"
#include "zsg/core/ISceneGraph.h"

#include <ostream>

namespace app {

namespace {

zsg::ColorDB& db(Host& host) { return *host.root().colorDB(); }

zsg::ColorController& controller(Host& host) { return *host.root().colorController(); }

void list(Host& host, Arguments&) {
    beginResultList(host);
    auto const span = db(host).colorways();
    std::vector<nyx::ColorwayId> const ids(span.begin(), span.end());
    for (nyx::ColorwayId const id : ids) {
        if (zsg::ZColorwayEdit const* const edit = db(host).getColorwayParameters(id)) {
            addResult(host, [&] {
                return nlohmann::ordered_json{{"id", id.toUint()},
                                              {"name", edit->displayName()},
                                              {"multiColors", edit->multiColors().size()},
                                              {"active", edit->isActive()},
                                              {"deleted", edit->isDeleted()}};
            });
            host.out() << (edit->isActive() ? "  * " : "    ") << id.toUint() << ' '
                       << printable(edit->displayName()) << ", "
                       << counted(edit->multiColors().size(), "multi-colour", "multi-colours")
                       << (edit->isDeleted() ? ", deleted" : "") << '\n';
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
    host.out() << "  " << printable(edit->displayName()) << (edit->isActive() ? ", active" : "")
               << (edit->isDeleted() ? ", deleted" : "") << '\n';
    giveResult(host, [&] {
        auto pairs = nlohmann::ordered_json::array();
        for (std::size_t i = 0; i < multis.size(); ++i) {
            pairs.push_back({{"multi", multis[i].toUint()}, {"sub", subs[i].toUint()}});
        }
        return nlohmann::ordered_json{{"id", id.toUint()},
                                      {"name", edit->displayName()},
                                      {"active", edit->isActive()},
                                      {"deleted", edit->isDeleted()},
                                      {"pairs", pairs}};
    });
    for (std::size_t i = 0; i < multis.size(); ++i) {
        host.out() << "    " << printable(db(host).colorFromId(multis[i]).getColorName()) << ": "
                   << colorLine(host, subs[i]) << '\n';
    }
}

void active(Host& host, Arguments&) {
    nyx::ColorwayId const id = db(host).activeColorwayId();
    host.out() << (id.isValid() ? std::to_string(id.toUint()) + ' ' +
                                      printable(db(host).activeColorwayName())
                                : std::string("none"))
               << '\n';
}

void create(Host& host, Arguments& arguments) {
    std::string const text = arguments.word("a name");
    nyx::ColorwayId const id = controller(host).createColorway(text, takePairs(host, arguments));
    if (!id.isValid()) {
        throw CommandError("no colorway could be made");
    }
    host.out() << "  " << id.toUint() << ' ' << printable(text) << '\n';
}

void apply(Host& host, Arguments& arguments) {
    nyx::ColorwayId const id = takeColorway(host, arguments);
    arguments.done();
    // A switch would end at the first one, with what lies before it switched and no entry for it.
    zsg::ColorDB& db = *host.root().colorDB();
    if (auto const* const edit = db.getColorwayParameters(id)) {
        for (zsg::MultiColorPair const& pair : edit->pairs()) {
            if (!db.getColorParameters(pair.multiColor)) {
                throw CommandError("it lists the colour " +
                                   std::to_string(pair.multiColor.toUint()) +
                                   ", which is gone; nothing was switched");
            }
        }
    }
    controller(host).applyColorway(id);
}

void name(Host& host, Arguments& arguments) {
    nyx::ColorwayId const id = takeColorway(host, arguments);
    std::string const text = arguments.word("a name");
    arguments.done();
    controller(host).setDisplayName(id, text);
}

void set(Host& host, Arguments& arguments) {
    nyx::ColorwayId const id = takeColorway(host, arguments);
    controller(host).setColors(id, takePairs(host, arguments));
}

void add(Host& host, Arguments& arguments) {
    nyx::ColorwayId const id = takeColorway(host, arguments);
    int const index = arguments.integer("a position");
    bool const replace = arguments.oneOf({"replace", "keep"}) == "replace";
    controller(host).addColors(id, takePairs(host, arguments), index, replace);
}

void remove(Host& host, Arguments& arguments) {
    nyx::ColorwayId const id = takeColorway(host, arguments);
    controller(host).removeMultiColors(id, takeColors(host, arguments));
}

void markDeleted(Host& host, Arguments& arguments) {
    nyx::ColorwayId const id = takeColorway(host, arguments);
    arguments.done();
    controller(host).setDeleted(id, true);
}

void restore(Host& host, Arguments& arguments) {
    nyx::ColorwayId const id = takeColorway(host, arguments);
    arguments.done();
    controller(host).setDeleted(id, false);
}

void board(Host& host, Arguments& arguments) {
    PictureFile const file = PictureFile::take(host, arguments);
    arguments.done();
    file.write(colorwayBoard(host));
}

constexpr Command table[] = {
    {"colorway list", "", "list colorways, * marks the active one", "colorway list", list},
    {"colorway show", "COLORWAY", "show what it makes of each multi-colour", "colorway show Studio",
     show},
    {"colorway new", "NAME MULTI:SUB...", "make a colorway",
     "colorway new Summer Upholstery:Linen Frame:Black", create},
    {"colorway active", "", "show the active one", "colorway active", active},
    {"colorway apply", "COLORWAY", "switch to a colorway", "colorway apply Autumn", apply},
    {"colorway name", "COLORWAY NAME", "rename a colorway", "colorway name Autumn Fall", name},
    {"colorway set", "COLORWAY MULTI:SUB...", "replace what a colorway covers",
     "colorway set Summer Upholstery:Sienna", set},
    {"colorway add", "COLORWAY INDEX replace|keep MULTI:SUB...", "add to a colorway",
     "colorway add Summer 0 replace Shade:Wheat", add},
    {"colorway remove", "COLORWAY MULTI...", "take multi-colours out of a colorway",
     "colorway remove Summer Shade", remove},
    {"colorway delete", "COLORWAY", "mark a colorway as deleted", "colorway delete Studio",
     markDeleted},
    {"colorway restore", "COLORWAY", "bring a deleted colorway back", "colorway restore Studio",
     restore},
    {"colorway board", "PATH [dark]",
     "draw what each colorway makes of each multi-colour (.svg, .png)",
     "colorway board board.svg dark", board},
};

} // namespace

Family colorwayFamily() { return {"colorways: look at them, switch and edit them", table}; }

} // namespace app
