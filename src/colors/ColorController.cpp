#include "zsg/colors/ColorController.h"

#include "colors/ColorCommands.h"
#include "colors/colorwayAccess.h"
#include "colors/subColorEdits.h"
#include "zsg/colors/ColorDB.h"

#include "zcore/ZUndoStack.h"

#include <QCoreApplication>
#include <QObject>

#include <algorithm>
#include <cmath>
#include <utility>

namespace zsg {

namespace {

QString filled(QString const& text, std::string const& name) {
    return text.arg(QString::fromStdString(name), 0, QChar(' '));
}

bool lists(nyx::Span<nyx::ColorId> ids, nyx::ColorId id) {
    return std::ranges::find(ids, id) != ids.end();
}

/// A NaN differs from everything, an infinity only from others.
bool differ(nyxColor_rgba const& a, nyxColor_rgba const& b) {
    constexpr float tolerance = 1e-4f;
    auto const near = [](float x, float y) { return x == y || std::fabs(x - y) < tolerance; };
    return !(near(a.r, b.r) && near(a.g, b.g) && near(a.b, b.b) && near(a.a, b.a));
}

} // namespace

ColorController::ColorController(ColorDB* colorDB, ISceneMaterialManager* materialManager,
                                 ZUndoStack* undoStack)
    : colorDB_(colorDB), materialManager_(materialManager), undoStack_(undoStack) {}

ColorController::~ColorController() = default;
ColorController::ColorController(ColorController const&) = default;
ColorController& ColorController::operator=(ColorController const&) = default;

IColorDB* ColorController::colorDB() const { return colorDB_; }

std::unique_ptr<ScopedMacro> ColorController::getScopedMacro(QString text) {
    return std::make_unique<ScopedMacro>(undoStack_, text);
}

bool ColorController::push(std::unique_ptr<ZUndoCommand> command) const {
    return undoStack_ ? undoStack_->push(command.release()) : command->redo();
}

// The change is made on the copy that becomes the after-state, and the redo installs it: when the
// stack refuses the command, nothing is left behind in the database's own edit.
bool ColorController::pushEdit(int kind, ZColorExtEdit const& edit,
                               std::function<void(ZColorExtEdit&)> const& change,
                               AllowForwardUndoMerge merge) const {
    auto before = edit.copyFor(edit.id());
    auto after = edit.copyFor(edit.id());
    change(*after);
    return push(std::make_unique<ZEditColorCommand>(kind, colorDB_, std::move(before),
                                                    std::move(after), static_cast<int>(merge)));
}

ZColorExtEdit* ColorController::multiColorEdit(nyx::ColorId id) const {
    ZColorExtEdit* const edit = colorDB_->getColorParameters(id);
    return edit && edit->hasFlag(ColorFlags::MultiColor) ? edit : nullptr;
}

void ColorController::setDisplayName(nyx::ColorId id, std::string const& name) const {
    if (ZColorExtEdit const* const edit = colorDB_->getColorParameters(id)) {
        pushEdit(static_cast<int>(ColorEditKind::Name), *edit,
                 [&](ZColorExtEdit& after) { after.setDisplayName(name); });
    }
}

void ColorController::setColor(nyx::ColorId id, ZColor const& color, AllowForwardUndoMerge merge) {
    if (ZColorExtEdit const* const edit = colorDB_->getColorParameters(id)) {
        pushEdit(
            static_cast<int>(ColorEditKind::Color), *edit,
            [&](ZColorExtEdit& after) {
                after.setColor(color.rgba());
                if (!color.name().empty()) {
                    after.setDisplayName(color.name());
                }
            },
            merge);
    }
}

void ColorController::setFlags(nyx::ColorId id, int flags, bool on) const {
    ZColorExtEdit const* const edit = colorDB_->getColorParameters(id);
    if (!edit || edit->hasFlag(ColorFlags::MultiColor)) {
        return;
    }
    auto const bits = static_cast<unsigned>(flags);
    pushEdit(static_cast<int>(ColorEditKind::Modify), *edit, [&](ZColorExtEdit& after) {
        if (on) {
            after.setFlag(bits);
        } else {
            after.clearFlag(bits);
        }
    });
}

nyx::ColorId ColorController::createSubColor(ZColor const& color) {
    nyx::ColorId const id = colorDB_->createColor(color.name(), nyxColor_extended::PlainColor);
    if (id.isValid()) {
        ZColorExt value = colorDB_->colorFromId(id);
        value.setColor(color, ZColorExt::NameOp::Keep);
        colorDB_->pushColor(value);
    }
    return id;
}

nyx::ColorId ColorController::addSubColor(nyx::ColorId multi, ZColor const& color, int index) {
    if (!multiColorEdit(multi)) {
        return {};
    }
    nyx::ColorId const id = createSubColor(color);
    if (id.isValid()) {
        addSubColors(multi, nyx::Span<nyx::ColorId>(&id, 1), index, nyx::ColorId());
    }
    return id;
}

void ColorController::addSubKColors(nyx::ColorId multi, nyx::Span<ZColor> const& colors) {
    if (colors.empty() || !multiColorEdit(multi)) {
        return;
    }
    ColorIdList ids;
    ids.reserve(colors.size());
    for (ZColor const& color : colors) {
        if (nyx::ColorId const id = createSubColor(color); id.isValid()) {
            ids.push_back(id);
        }
    }
    if (!ids.empty()) {
        addSubColors(multi, ids, -1, nyx::ColorId());
    }
}

nyx::ColorId ColorController::addOrSwitchSubColor(nyx::ColorId multi, nyx::ColorId sub, bool link) {
    if (!multi.isValid() || !sub.isValid()) {
        return {};
    }
    ZColorExt const source = colorDB_->colorFromId(sub);
    ZColorExtEdit const* const target = multiColorEdit(multi);
    if (!target) {
        return {};
    }
    // A listed sub-colour is used as it is, even when its record is gone; nothing else can be made
    // of one that has no record.
    bool const listed = target->hasSubColor(sub);
    if (!source.getId().isValid() && !(link && listed)) {
        return {};
    }
    nyx::ColorId used = sub;
    if (!link) {
        used = addSubColor(multi, ZColor(source), -1);
    } else if (!listed) {
        addSubColors(multi, nyx::Span<nyx::ColorId>(&sub, 1), -1, sub);
    }
    if (used.isValid()) {
        setActiveSubColor(multi, used);
    }
    return used;
}

void ColorController::addSubColors(nyx::ColorId multi, nyx::Span<nyx::ColorId> subs, int index,
                                   nyx::ColorId active) const {
    if (ZColorExtEdit const* const edit = multiColorEdit(multi)) {
        pushEdit(static_cast<int>(ColorEditKind::AddSubColor), *edit, [&](ZColorExtEdit& after) {
            after.setSubColors(withInserted(after.subColors(), subs, index));
            if (active.isValid()) {
                after.setActiveSub(active);
            }
        });
    }
}

void ColorController::moveSubColors(nyx::ColorId multi, nyx::Span<nyx::ColorId> subs, int index,
                                    nyx::ColorId active) const {
    if (ZColorExtEdit const* const edit = multiColorEdit(multi)) {
        pushEdit(static_cast<int>(ColorEditKind::MoveSubColor), *edit, [&](ZColorExtEdit& after) {
            after.setSubColors(withMoved(after.subColors(), subs, index));
            if (active.isValid() && after.hasSubColor(active)) {
                after.setActiveSub(active);
            }
        });
    }
}

void ColorController::setSubColors(nyx::ColorId multi, nyx::Span<nyx::ColorId> subs) const {
    if (ZColorExtEdit const* const edit = multiColorEdit(multi)) {
        pushEdit(static_cast<int>(ColorEditKind::AddSubColor), *edit,
                 [&](ZColorExtEdit& after) { after.setSubColors(subs); });
    }
}

void ColorController::setActiveSubColor(nyx::ColorId multi, nyx::ColorId sub) const {
    if (ZColorExtEdit const* const edit = multiColorEdit(multi)) {
        pushEdit(static_cast<int>(ColorEditKind::SwitchSubColor), *edit,
                 [&](ZColorExtEdit& after) { after.setActiveSub(sub); });
    }
}

void ColorController::changeSubColor(nyx::ColorId multi, nyx::ColorId oldSub, nyx::ColorId newSub) {
    ZColorExtEdit const* const edit = multiColorEdit(multi);
    if (edit && oldSub != newSub && !edit->hasSubColor(newSub)) {
        // As "Set Color": trying sub-colours one after the other in a picker becomes one step, as
        // a drag does.
        pushEdit(static_cast<int>(ColorEditKind::Color), *edit,
                 [&](ZColorExtEdit& after) { after.replaceSubColor(oldSub, newSub); });
    }
}

bool ColorController::removeSubColors(nyx::ColorId multi, nyx::Span<nyx::ColorId> subs) const {
    ZColorExtEdit const* const edit = multiColorEdit(multi);
    if (!edit) {
        return false;
    }
    SubColorRemoval const removal = withoutSubColors(edit->subColors(), subs, edit->activeSub());
    auto const affected = colorwaysWhere(*colorDB_, [&](ZColorwayEdit const& colorway) {
        return colorway.containsMultiColor(multi) &&
               lists(removal.removed, colorway.activeSubOf(multi));
    });

    auto before = edit->copyFor(multi);
    auto after = edit->copyFor(multi);
    after->setSubColors(removal.left);
    after->setActiveSub(removal.active);
    auto command = std::make_unique<ZEditColorCommand>(
        static_cast<int>(ColorEditKind::RemoveSubColor), colorDB_, std::move(before),
        std::move(after), static_cast<int>(AllowForwardUndoMerge::Yes));
    command->setSyncColors(removal.removed);
    if (affected.empty()) {
        return push(std::move(command));
    }

    ScopedMacro const macro(undoStack_, command->text());
    if (!push(std::move(command))) {
        return false;
    }
    for (nyx::ColorwayId const colorway : affected) {
        if (removal.active.isValid()) {
            MultiColorPair const pair{multi, removal.active};
            addColors(colorway, nyx::Span<MultiColorPair>(&pair, 1), -1, true);
        } else {
            removeMultiColors(colorway, nyx::Span<nyx::ColorId>(&multi, 1));
        }
    }
    return true;
}

void ColorController::unlinkSubColor(nyx::ColorId multi, unsigned int index) const {
    ZColorExtEdit const* edit = multiColorEdit(multi);
    if (!edit || index >= edit->subColors().size()) {
        return;
    }
    ColorIdList subs(edit->subColors().begin(), edit->subColors().end());
    nyx::ColorId const clone = colorDB_->clone(subs[index]);
    // Listeners of the clone's events may have changed the multi-colour.
    edit = multiColorEdit(multi);
    if (!clone.isValid() || !edit) {
        return;
    }
    subs[index] = clone;
    pushEdit(static_cast<int>(ColorEditKind::UnlinkSubColor), *edit, [&](ZColorExtEdit& after) {
        after.setSubColors(subs);
        after.setActiveSub(clone);
    });
}

nyx::ColorId ColorController::toggleMultiColor(nyx::ColorId id) {
    if (!id.isValid() || !colorDB_->getColorParameters(id)) {
        return {};
    }
    ZColorExt const color = colorDB_->colorFromId(id);
    std::optional<std::string> name = color.getColorName();
    if (name->empty()) {
        name = colorDB_->findUniqueColorName(QObject::tr("Multi-Color").toStdString(), {},
                                             nyxColor_extended::MultiColor);
    }
    return color.isMultiColor() ? disableMultiColor(id) : enableMultiColor(id, name);
}

nyx::ColorId ColorController::enableMultiColor(nyx::ColorId id,
                                               std::optional<std::string> const& name) {
    // Without a name this throws, and nothing has been changed yet.
    QString const text = filled(QObject::tr("Enable Multi Color (%1)"), name.value());
    ScopedMacro const macro(undoStack_, text);
    auto const nameIfUnnamed = [&](nyx::ColorId color) {
        ZColorExtEdit const* const edit = colorDB_->getColorParameters(color);
        if (edit && edit->displayName().empty()) {
            setDisplayName(color, *name);
        }
    };
    nameIfUnnamed(id);
    nyx::ColorId const multi = colorDB_->multiColorFromColor(id);
    if (!multi.isValid()) {
        return {};
    }
    nameIfUnnamed(multi);
    push(std::make_unique<ZToggleMultiColorCommand>(colorDB_, ColorIdList{multi}));
    linkMaterialColors(id, multi);
    return multi;
}

nyx::ColorId ColorController::disableMultiColor(nyx::ColorId id) {
    ZColorExt const color = colorDB_->colorFromId(id);
    ZColorExtEdit const* const edit = colorDB_->getColorParameters(id);
    ColorIdList announced(edit->subColors().begin(), edit->subColors().end());
    announced.push_back(id);
    // Looked up before the materials let go of the multi-colour: reading a colorway for the first
    // time drops multi-colours that nothing uses, and there would be nothing left to remove
    // undoably.
    auto const covering = colorwaysWhere(
        *colorDB_, [id](ZColorwayEdit const& colorway) { return colorway.containsMultiColor(id); });

    ScopedMacro const macro(undoStack_,
                            filled(QObject::tr("Disable Multi Color (%1)"), color.getColorName()));
    nyx::ColorId const active = color.getActiveSubColorId();
    push(std::make_unique<ZToggleMultiColorCommand>(colorDB_, std::move(announced)));
    linkMaterialColors(id, active);
    for (nyx::ColorwayId const colorway : covering) {
        removeMultiColors(colorway, nyx::Span<nyx::ColorId>(&id, 1));
    }
    return active;
}

std::vector<IColorController::ColorConflict> ColorController::checkForConflict(ZColorExt color) {
    std::vector<ColorConflict> conflicts;
    auto const lock = colorDB_->createRtApiLock();
    for (int i = 0; i < color.nColors(); ++i) {
        std::string const& name = color.getName(i);
        nyx::ColorId const existing = colorDB_->colorFromName(*lock, name);
        if (existing.isValid() && activeReferenceCount(existing) != 0 &&
            differ(colorDB_->colorFromId(existing).rgba(), color.getColor(i).rgba())) {
            conflicts.push_back({i, name, existing});
        }
    }
    return conflicts;
}

} // namespace zsg
