#include "colors/ZColorLinker.h"

#include "zsg/colors/IColorController.h"
#include "zsg/colors/IColorDB.h"
#include "zsg/colors/IColorLinkHandler.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace zsg {

namespace {

/// Two elements may have been linked to one colour; it becomes a sub-colour once. Returns where the
/// element at `active` stands then.
int dropRepeated(std::vector<ZColorExt::ZColorWithId>& elements, int active) {
    std::vector<ZColorExt::ZColorWithId> kept;
    std::unordered_map<nyx::ColorId, std::size_t> places;
    int newActive = active;
    for (std::size_t i = 0; i < elements.size(); ++i) {
        nyx::ColorId const id = elements[i].id;
        std::size_t place = kept.size();
        if (id.isValid()) {
            place = places.emplace(id, place).first->second;
        }
        if (static_cast<int>(i) == active) {
            newActive = static_cast<int>(place);
        }
        if (place == kept.size()) {
            kept.push_back(std::move(elements[i]));
        }
    }
    elements = std::move(kept);
    return newActive;
}

/// Finds names for elements that are not in the scene yet: the renderer does not know the names of
/// the others, nor the one that the multi-colour itself will get.
class NewNames {
public:
    explicit NewNames(IColorLinker& linker) : linker_(linker) {}

    void reserveNamesOf(ZColorExt const& color) {
        for (int i = 0; i < color.nColors(); ++i) {
            taken_.insert(color.getName(i));
        }
        if (color.isMultiColor()) {
            std::string const& own = color.getColorName();
            taken_.insert(color.getId().isValid() ? own : linker_.uniqueColorName(own));
        }
    }

    /// A name like `name` that nothing has; empty when there is none.
    std::string take(std::string const& name) {
        std::string candidate = linker_.uniqueColorName(name);
        if (!candidate.empty() && taken_.contains(candidate)) {
            // The renderer's first free number is taken; the numbers behind it are counted on from
            // one element to the next.
            std::string const base = baseOf(candidate);
            int& number = lastNumbers_[base];
            do {
                candidate = linker_.uniqueColorName(base + ' ' + std::to_string(++number));
            } while (!candidate.empty() && taken_.contains(candidate));
        }
        taken_.insert(candidate);
        return candidate;
    }

private:
    /// Without the blank and number at the end.
    static std::string baseOf(std::string const& name) {
        std::size_t const blank = name.find_last_not_of("0123456789");
        bool const isNumbered =
            blank != std::string::npos && blank + 1 < name.size() && name[blank] == ' ';
        return isNumbered && blank > 0 ? name.substr(0, blank) : name;
    }

    IColorLinker& linker_;
    std::unordered_set<std::string> taken_;
    std::unordered_map<std::string, int> lastNumbers_;
};

} // namespace

ZColorLinker::ZColorLinker(IColorController* controller, IColorLinkHandler* handler)
    : controller_(controller), colorDB_(controller->colorDB()), handler_(handler) {}

std::string ZColorLinker::uniqueColorName(std::string const& name) {
    return colorDB_->findUniqueColorName(name, {}, nyxColor_extended::PlainColor)
        .value_or(std::string());
}

nyx::ColorId ZColorLinker::importColor(ZColorExt& color) {
    std::vector<ZColorExt::ZColorWithId> elements;
    elements.reserve(static_cast<std::size_t>(std::max(0, color.nColors())));
    for (int i = 0; i < color.nColors(); ++i) {
        elements.emplace_back(color.getColor(i), color.getSubColorId(i));
    }
    auto const conflicts = controller_->checkForConflict(color);
    NewNames names(*this);
    if (!conflicts.empty()) {
        names.reserveNamesOf(color);
    }
    for (IColorController::ColorConflict const& conflict : conflicts) {
        auto& element = elements[static_cast<std::size_t>(conflict.index)];
        auto const resolution =
            handler_ ? handler_->resolveConflict(color, conflict.index, conflict.existing)
                     : IColorLinkHandler::Resolution::Rename;
        if (resolution == IColorLinkHandler::Resolution::Rename) {
            element.setName(names.take(conflict.name));
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
    std::unordered_set<nyx::ColorId> listed;
    for (int i = 0; i < target.nColors(); ++i) {
        listed.insert(target.getSubColorId(i));
    }
    std::vector<nyx::ColorId> missing;
    for (int i = 0; i < source.nColors(); ++i) {
        if (nyx::ColorId const id = source.getSubColorId(i); listed.insert(id).second) {
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
