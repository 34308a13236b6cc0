// The colorway operations of ColorController.

#include "zsg/colors/ColorController.h"

#include "colors/ColorCommands.h"
#include "colors/colorwayPairs.h"
#include "zsg/colors/ColorDB.h"

#include <QCoreApplication>

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace zsg {

namespace {

ColorwayPairs split(nyx::Span<MultiColorPair> pairs) {
    ColorwayPairs lists;
    lists.multiColors.reserve(pairs.size());
    lists.activeSubs.reserve(pairs.size());
    for (MultiColorPair const& pair : pairs) {
        lists.multiColors.push_back(pair.multiColor);
        lists.activeSubs.push_back(pair.subColor);
    }
    return lists;
}

void addPairs(ColorwayPairs& lists, nyx::Span<MultiColorPair> pairs, int index, bool replace) {
    std::unordered_map<nyx::ColorId, std::size_t> places;
    for (std::size_t i = 0; i < lists.multiColors.size(); ++i) {
        places.emplace(lists.multiColors[i], i);
    }
    ColorwayPairs added;
    std::size_t const old = lists.multiColors.size();
    for (MultiColorPair const& pair : pairs) {
        auto const [found, isNew] = places.emplace(pair.multiColor, old + added.multiColors.size());
        if (isNew) {
            added.multiColors.push_back(pair.multiColor);
            added.activeSubs.push_back(pair.subColor);
        } else if (replace) {
            std::size_t const place = found->second;
            (place < old ? lists.activeSubs[place] : added.activeSubs[place - old]) = pair.subColor;
        }
    }
    auto const at = index < 0 || static_cast<std::size_t>(index) > old
                        ? static_cast<std::ptrdiff_t>(old)
                        : index;
    lists.multiColors.insert(lists.multiColors.begin() + at, added.multiColors.begin(),
                             added.multiColors.end());
    lists.activeSubs.insert(lists.activeSubs.begin() + at, added.activeSubs.begin(),
                            added.activeSubs.end());
}

} // namespace

bool ColorController::pushEdit(int kind, ZColorwayEdit const& edit,
                               std::function<void(ZColorwayEdit&)> const& change) const {
    auto before = edit.copy();
    auto after = edit.copy();
    change(*after);
    return push(std::make_unique<ZEditColorWayCommand>(kind, colorDB_, std::move(before),
                                                       std::move(after)));
}

void ColorController::setDisplayName(nyx::ColorwayId id, std::string const& name) const {
    if (ZColorwayEdit const* const edit = colorDB_->getColorwayParameters(id)) {
        pushEdit(static_cast<int>(ColorwayEditKind::Name), *edit,
                 [&](ZColorwayEdit& after) { after.setDisplayName(name); });
    }
}

nyx::ColorwayId ColorController::createColorway(std::string const& name,
                                                nyx::Span<MultiColorPair> pairs) {
    if (name.empty()) {
        return {};
    }
    // The caller's pairs may lie in a list that making the record lets go of.
    ColorwayPairs const lists = split(pairs);
    nyx::ColorwayId const id = colorDB_->createColorway();
    if (ZColorwayEdit* const edit = id.isValid() ? colorDB_->getColorwayParameters(id) : nullptr) {
        edit->setDisplayName(name);
        edit->setPairs(lists.multiColors, lists.activeSubs);
        bool const pushed = push(std::make_unique<ZCreateColorwayCommand>(
            QCoreApplication::translate("ZCreateColorwayCommand", "Create Colorway"), colorDB_,
            id));
        // A push that was refused must not leave changes behind for a later commit to write.
        ZColorwayEdit* const again = pushed ? nullptr : colorDB_->getColorwayParameters(id);
        if (again) {
            again->setDisplayName({});
            again->setPairs({}, {});
        }
    }
    return id;
}

void ColorController::applyColorway(nyx::ColorwayId id) const {
    if (colorDB_->getColorwayParameters(id)) {
        push(std::make_unique<ZActivateColorwayCommand>(colorDB_, id));
    }
}

void ColorController::setColors(nyx::ColorwayId id, nyx::Span<MultiColorPair> pairs) const {
    if (ZColorwayEdit const* const edit = colorDB_->getColorwayParameters(id)) {
        ColorwayPairs const lists = split(pairs);
        pushEdit(static_cast<int>(ColorwayEditKind::Colors), *edit, [&](ZColorwayEdit& after) {
            after.setPairs(lists.multiColors, lists.activeSubs);
        });
    }
}

void ColorController::addColors(nyx::ColorwayId id, nyx::Span<MultiColorPair> pairs, int index,
                                bool replace) const {
    if (ZColorwayEdit const* const edit = colorDB_->getColorwayParameters(id)) {
        auto const multiColors = edit->multiColors();
        auto const activeSubs = edit->activeSubIndices();
        std::size_t const count = std::min(multiColors.size(), activeSubs.size());
        ColorwayPairs lists{{multiColors.begin(), multiColors.begin() + count},
                            {activeSubs.begin(), activeSubs.begin() + count}};
        addPairs(lists, pairs, index, replace);
        auto before = edit->copy();
        auto after = edit->copy();
        after->setPairs(lists.multiColors, lists.activeSubs);
        auto command =
            std::make_unique<ZEditColorWayCommand>(static_cast<int>(ColorwayEditKind::Colors),
                                                   colorDB_, std::move(before), std::move(after));
        ScopedMacro const macro(undoStack_, command->text());
        push(std::move(command));
    }
}

void ColorController::removeMultiColors(nyx::ColorwayId id, nyx::Span<nyx::ColorId> multis) const {
    if (ZColorwayEdit const* const edit = colorDB_->getColorwayParameters(id)) {
        pushEdit(static_cast<int>(ColorwayEditKind::Colors), *edit,
                 [&](ZColorwayEdit& after) { after.removeMultiColors(multis); });
    }
}

void ColorController::setDeleted(nyx::ColorwayId id, bool deleted) const {
    if (ZColorwayEdit const* const edit = colorDB_->getColorwayParameters(id)) {
        pushEdit(static_cast<int>(ColorwayEditKind::Delete), *edit,
                 [&](ZColorwayEdit& after) { after.setDeleted(deleted); });
    }
}

} // namespace zsg
