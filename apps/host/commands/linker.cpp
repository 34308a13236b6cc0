#include "host/ColorArguments.h"
#include "host/Command.h"
#include "host/Host.h"
#include "host/printable.h"
#include "zsg/colors/ColorController.h"
#include "zsg/colors/ColorDB.h"
#include "zsg/colors/IColorLinkHandler.h"
#include "zsg/core/ISceneGraph.h"

#include <ostream>

namespace app {

namespace {

zsg::ColorController& controller(Host& host) { return *host.root().colorController(); }

/// Answers every conflict alike and says so.
class Answer final : public zsg::IColorLinkHandler {
public:
    Answer(Host& host, Resolution resolution) : host_(host), resolution_(resolution) {}

    Resolution resolveConflict(ZColorExt const& color, int index, nyx::ColorId existing) override {
        host_.out() << "  conflict: \"" << printable(color.getName(index)) << "\" is colour "
                    << existing.toUint()
                    << (resolution_ == Resolution::Link ? ", linked\n" : ", renamed\n");
        return resolution_;
    }

private:
    Host& host_;
    Resolution resolution_;
};

/// NAME RGBA, or NAME = ELEMENT RGBA ELEMENT RGBA ... for a multi-colour.
ZColorExt takeForeign(Host& host, Arguments& arguments) {
    std::string const text = arguments.word("a name");
    ZColorExt value;
    value.setColorName(text);
    std::vector<ZColorExt::ZColorWithId> elements;
    if (arguments.flag("=")) {
        value.setMultiColor(true);
        while (!arguments.empty()) {
            std::string const element = arguments.word("a name");
            elements.emplace_back(ZColor(takeRgba(host, arguments), element), nyx::ColorId());
        }
    } else {
        elements.emplace_back(ZColor(takeRgba(host, arguments), text), nyx::ColorId());
    }
    arguments.done();
    value.setColors(elements);
    return value;
}

void conflicts(Host& host, Arguments& arguments) {
    auto const found = controller(host).checkForConflict(takeForeign(host, arguments));
    for (zsg::IColorController::ColorConflict const& conflict : found) {
        host.out() << "  \"" << printable(conflict.name) << "\" is "
                   << colorLine(host, conflict.existing) << '\n';
    }
    host.out() << (found.empty() ? "  no conflict\n" : "");
}

void importColor(Host& host, Arguments& arguments) {
    bool const linkThem = arguments.oneOf({"link", "rename"}) == "link";
    ZColorExt value = takeForeign(host, arguments);
    Answer answer(host, linkThem ? zsg::IColorLinkHandler::Resolution::Link
                                 : zsg::IColorLinkHandler::Resolution::Rename);
    auto const linker = host.root().colorDB()->getColorLinker(&controller(host), &answer);
    printColor(host, linker->importColor(value), "nothing was changed");
}

void merge(Host& host, Arguments& arguments) {
    nyx::ColorId const to = takeColor(host, arguments, "a multi-colour");
    nyx::ColorId const from = takeColor(host, arguments, "a multi-colour");
    arguments.done();
    host.root().colorDB()->getColorLinker(&controller(host), nullptr)->mergeSubColors(to, from);
}

constexpr Command table[] = {
    {"linker conflicts", "NAME RGBA | NAME = NAME RGBA...",
     "list the colours in use that a foreign colour would overwrite",
     "linker conflicts Ivory #f0f0e0", conflicts},
    {"linker import", "link|rename NAME RGBA | NAME = NAME RGBA...",
     "bring a foreign colour or multi-colour in, settling conflicts",
     "linker import rename Sand = Light #e8d8b0 Dark #a08050", importColor},
    {"linker merge", "TO FROM", "add the sub-colours that TO lacks", "linker merge Frame Shade",
     merge},
};

} // namespace

Family linkerFamily() { return {"colours from elsewhere: name conflicts, import", table}; }

} // namespace app
