#include "colors/ZColorLinker.h"

#include "zsg/colors/IColorController.h"
#include "zsg/colors/IColorDB.h"
#include "zsg/colors/IColorLinkHandler.h"

#include <algorithm>
#include <utility>

namespace zsg {

namespace {

// Two elements may have been linked to one colour; it becomes a sub-colour once. Returns where the
// element at `active` stands then.
int dropRepeated(std::vector<ZColorExt::ZColorWithId>& elements, int active) {
    std::vector<ZColorExt::ZColorWithId> kept;
    int newActive = active;
    for (std::size_t i = 0; i < elements.size(); ++i) {
        auto const same = std::ranges::find_if(kept, [&](auto const& element) {
            return element.id.isValid() && element.id == elements[i].id;
        });
        if (static_cast<int>(i) == active) {
            newActive = static_cast<int>(same - kept.begin());
        }
        if (same == kept.end()) {
            kept.push_back(elements[i]);
        }
    }
    elements = std::move(kept);
    return newActive;
}

} // namespace

ZColorLinker::ZColorLinker(IColorController* controller, IColorLinkHandler* handler)
    : controller_(controller), colorDB_(controller->colorDB()), handler_(handler) {}

std::string ZColorLinker::uniqueColorName(std::string const& name) {
    return colorDB_->findUniqueColorName(name, {}, nyxColor_extended::PlainColor)
        .value_or(std::string());
}

// The other elements are not in the scene yet, so the renderer does not know their names.
std::string ZColorLinker::unusedName(std::string const& name, Elements const& elements) {
    auto const taken = [&](std::string const& candidate) {
        return std::ranges::any_of(
            elements, [&](auto const& element) { return element.name() == candidate; });
    };
    std::string candidate = uniqueColorName(name);
    for (int n = 1; !candidate.empty() && taken(candidate); ++n) {
        candidate = uniqueColorName(name + ' ' + std::to_string(n));
    }
    return candidate;
}

nyx::ColorId ZColorLinker::importColor(ZColorExt& color) {
    Elements elements;
    for (int i = 0; i < color.nColors(); ++i) {
        elements.emplace_back(color.getColor(i), color.getSubColorId(i));
    }
    auto const conflicts = controller_->checkForConflict(color);
    for (IColorController::ColorConflict const& conflict : conflicts) {
        auto& element = elements[static_cast<std::size_t>(conflict.index)];
        auto const resolution =
            handler_ ? handler_->resolveConflict(color, conflict.index, conflict.existing)
                     : IColorLinkHandler::Resolution::Rename;
        if (resolution == IColorLinkHandler::Resolution::Rename) {
            element.setName(unusedName(conflict.name, elements));
            // With the id of the colour in use it would be that colour that is renamed.
            if (element.id == conflict.existing) {
                element.id = {};
            }
            if (color.getId() == conflict.existing) {
                color.setId({});
            }
            continue;
        }
        // The existing colour keeps its value, or linking would overwrite it.
        ZColorExt const existing = colorDB_->colorFromId(conflict.existing);
        if (!color.isMultiColor()) {
            color = existing;
            return conflict.existing;
        }
        element = ZColorExt::ZColorWithId(ZColor(existing), conflict.existing);
    }
    if (!conflicts.empty()) {
        int const active = dropRepeated(elements, color.activeIndex());
        color.setColors(elements);
        color.setActiveIndex(active);
        if (!color.isMultiColor()) {
            color.setColorName(elements.front().name());
        }
    }
    colorDB_->pushColor(color);
    return color.getId();
}

void ZColorLinker::mergeSubColors(nyx::ColorId to, nyx::ColorId from) {
    ZColorExt const target = colorDB_->colorFromId(to);
    ZColorExt const source = colorDB_->colorFromId(from);
    if (!target.isMultiColor() || !source.isMultiColor()) {
        return;
    }
    std::vector<nyx::ColorId> missing;
    for (int i = 0; i < source.nColors(); ++i) {
        if (nyx::ColorId const id = source.getSubColorId(i); !target.hasSubColor(id)) {
            missing.push_back(id);
        }
    }
    if (!missing.empty()) {
        controller_->addSubColors(to, missing, -1, nyx::ColorId());
    }
}

IColorController* ZColorLinker::controller() const { return controller_; }

IColorDB* ZColorLinker::colorDB() const { return colorDB_; }

} // namespace zsg
