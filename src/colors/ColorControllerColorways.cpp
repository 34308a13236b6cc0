// The colorway operations of ColorController.

#include "zsg/colors/ColorController.h"

#include "colors/ColorCommands.h"
#include "colors/colorwayPairs.h"
#include "zsg/colors/ColorDB.h"

#include <QCoreApplication>

#include <utility>

namespace zsg {

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
    std::vector<MultiColorPair> const given(pairs.begin(), pairs.end());
    nyx::ColorwayId const id = colorDB_->createColorway();
    if (ZColorwayEdit* const edit = id.isValid() ? colorDB_->getColorwayParameters(id) : nullptr) {
        edit->setDisplayName(name);
        edit->setPairs(given);
        bool const pushed = push(std::make_unique<ZCreateColorwayCommand>(
            QCoreApplication::translate("ZCreateColorwayCommand", "Create Colorway"), colorDB_,
            id));
        // A push that was refused must not leave changes behind for a later commit to write.
        ZColorwayEdit* const again = pushed ? nullptr : colorDB_->getColorwayParameters(id);
        if (again) {
            again->setDisplayName({});
            again->setPairs({});
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
        pushEdit(static_cast<int>(ColorwayEditKind::Colors), *edit,
                 [&](ZColorwayEdit& after) { after.setPairs(pairs); });
    }
}

void ColorController::addColors(nyx::ColorwayId id, nyx::Span<MultiColorPair> pairs, int index,
                                bool replace) const {
    if (ZColorwayEdit const* const edit = colorDB_->getColorwayParameters(id)) {
        auto before = edit->copy();
        auto after = edit->copy();
        after->setPairs(pairsWith(after->pairs(), pairs, index, replace));
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
