#include "colors/ColorCommands.h"

#include "colors/colorwayAccess.h"
#include "zsg/colors/ColorDB.h"

#include <QCoreApplication>

#include <array>
#include <utility>

namespace zsg {

namespace {

std::array<char const*, 8> const colorTexts = {
    QT_TRANSLATE_NOOP("ZEditColorCommand", "Set Color name %1"),
    QT_TRANSLATE_NOOP("ZEditColorCommand", "Set Color"),
    QT_TRANSLATE_NOOP("ZEditColorCommand", "Remove Sub Color %1"),
    QT_TRANSLATE_NOOP("ZEditColorCommand", "Switch Sub Color %1"),
    QT_TRANSLATE_NOOP("ZEditColorCommand", "Add Sub Color %1"),
    QT_TRANSLATE_NOOP("ZEditColorCommand", "Unlink Sub Color %1"),
    QT_TRANSLATE_NOOP("ZEditColorCommand", "Move Sub Color %1"),
    QT_TRANSLATE_NOOP("ZEditColorCommand", "Modify Color %1"),
};
char const* const clearColorName = QT_TRANSLATE_NOOP("ZEditColorCommand", "Clear Color name");

std::array<char const*, 3> const colorwayTexts = {
    QT_TRANSLATE_NOOP("ZEditColorWayCommand", "Set Colorway name %1"),
    QT_TRANSLATE_NOOP("ZEditColorWayCommand", "Edit Colorway %1"),
    QT_TRANSLATE_NOOP("ZEditColorWayCommand", "Delete Colorway %1"),
};
char const* const clearColorwayName =
    QT_TRANSLATE_NOOP("ZEditColorWayCommand", "Clear Colorway name");

// "(%1)" filled with a name, or nothing.
QString inBrackets(std::string const& name) {
    return name.empty() ? QString() : '(' + QString::fromStdString(name) + ')';
}

template <std::size_t N>
QString editText(char const* context, std::array<char const*, N> const& texts,
                 char const* clearName, int kind, std::string const& name) {
    if (kind < 0 || static_cast<std::size_t>(kind) >= N) {
        return {};
    }
    QString const value = inBrackets(name);
    if (kind == 0 && value.isEmpty()) {
        return QCoreApplication::translate(context, clearName);
    }
    QString const text =
        QCoreApplication::translate(context, texts[static_cast<std::size_t>(kind)]);
    // "Set Color" names nothing.
    return text.contains(QLatin1String("%1")) ? text.arg(value, 0, QChar(' ')) : text;
}

} // namespace

ZCreateColorwayCommand::ZCreateColorwayCommand(QString const& text, ColorDB* colorDB,
                                               nyx::ColorwayId colorway)
    : ZUndoCommand(ZCommandId::CreateColorway, text), colorDB_(colorDB), colorway_(colorway) {}

bool ZCreateColorwayCommand::undo() { return setDeleted(true); }

bool ZCreateColorwayCommand::redo() { return setDeleted(false); }

bool ZCreateColorwayCommand::setDeleted(bool deleted) {
    return setColorwayFlag(*colorDB_, colorway_, &ZColorwayEdit::setDeleted, deleted);
}

ZActivateColorwayCommand::ZActivateColorwayCommand(ColorDB* colorDB, nyx::ColorwayId colorway)
    : ZUndoCommand(ZCommandId::ActivateColorway), colorDB_(colorDB), colorway_(colorway) {
    ZColorwayEdit const* const edit = colorDB_->getColorwayParameters(colorway);
    if (!edit) {
        return;
    }
    setText(QCoreApplication::translate("ZActivateColorwayCommand", "Switch Colorway (%1)")
                .arg(QString::fromStdString(edit->displayName()), 0, QChar(' ')));
    if (edit->multiColors().size() != edit->activeSubIndices().size()) {
        return;
    }
    redoSubs_ = edit->pairs();
    undoSubs_ = redoSubs_;
    for (auto& [multi, sub] : undoSubs_) {
        ZColorExtEdit const* const color = colorDB_->getColorParameters(multi);
        sub = color ? color->activeSub() : nyx::ColorId();
    }
    otherActive_ = colorwaysWhere(*colorDB_, [](ZColorwayEdit const& e) { return e.isActive(); });
    std::erase(otherActive_, colorway);
}

bool ZActivateColorwayCommand::undo() {
    if (!applySubs(undoSubs_)) {
        return false;
    }
    setActive(colorway_, false);
    for (nyx::ColorwayId const other : otherActive_) {
        setActive(other, true);
    }
    return true;
}

bool ZActivateColorwayCommand::redo() {
    if (!applySubs(redoSubs_)) {
        return false;
    }
    setActive(colorway_, true);
    for (nyx::ColorwayId const other : otherActive_) {
        setActive(other, false);
    }
    return true;
}

bool ZActivateColorwayCommand::applySubs(std::vector<MultiColorPair> const& pairs) {
    for (MultiColorPair const& pair : pairs) {
        ZColorExtEdit* const edit = colorDB_->getColorParameters(pair.multiColor);
        if (!edit) {
            return false;
        }
        edit->setActiveSub(pair.subColor);
        colorDB_->pushColor(pair.multiColor);
    }
    return true;
}

void ZActivateColorwayCommand::setActive(nyx::ColorwayId colorway, bool active) {
    setColorwayFlag(*colorDB_, colorway, &ZColorwayEdit::setActive, active);
}

ZEditColorWayCommand::ZEditColorWayCommand(int kind, ColorDB* colorDB,
                                           std::unique_ptr<ZColorwayEdit>&& before,
                                           std::unique_ptr<ZColorwayEdit>&& after)
    : ZUndoCommand(ZCommandId::EditColorway),
      colorDB_(colorDB),
      before_(std::move(before)),
      after_(std::move(after)) {
    setText(editText("ZEditColorWayCommand", colorwayTexts, clearColorwayName, kind,
                     after_->displayName()));
}

ZEditColorWayCommand::~ZEditColorWayCommand() = default;

bool ZEditColorWayCommand::undo() {
    colorDB_->setColorwayEdit(before_.get());
    return true;
}

bool ZEditColorWayCommand::redo() {
    colorDB_->setColorwayEdit(after_.get());
    return true;
}

ZEditColorCommand::ZEditColorCommand(int kind, ColorDB* colorDB,
                                     std::unique_ptr<ZColorExtEdit>&& before,
                                     std::unique_ptr<ZColorExtEdit>&& after, int mergeMode)
    : ZUndoCommand(ZCommandId::EditColor),
      kind_(kind),
      colorDB_(colorDB),
      before_(std::move(before)),
      after_(std::move(after)),
      mergeMode_(mergeMode) {
    setText(editText("ZEditColorCommand", colorTexts, clearColorName, kind, after_->displayName()));
    if (!after_->hasFlag(ColorFlags::MultiColor)) {
        return;
    }
    nyx::ColorId const id = after_->id();
    deactivateOnRedo_ = colorwaysWhere(*colorDB_, [&](ZColorwayEdit const& colorway) {
        return colorway.isActive() && colorway.containsMultiColor(id) &&
               colorway.activeSubOf(id) != after_->activeSub();
    });
}

ZEditColorCommand::~ZEditColorCommand() = default;

void ZEditColorCommand::setUndeleteOnRedo(std::vector<nyx::ColorwayId> colorways) {
    undeleteOnRedo_ = std::move(colorways);
}

void ZEditColorCommand::setSyncColors(std::vector<nyx::ColorId> colors) {
    syncColors_ = std::move(colors);
}

bool ZEditColorCommand::undo() {
    install(*before_, false);
    return true;
}

bool ZEditColorCommand::redo() {
    install(*after_, true);
    return true;
}

void ZEditColorCommand::install(ZColorExtEdit const& state, bool redo) {
    colorDB_->setColorEdit(&state);
    for (nyx::ColorwayId const colorway : deactivateOnRedo_) {
        setColorwayFlag(*colorDB_, colorway, &ZColorwayEdit::setActive, !redo);
    }
    for (nyx::ColorwayId const colorway : undeleteOnRedo_) {
        setColorwayFlag(*colorDB_, colorway, &ZColorwayEdit::setDeleted, !redo);
    }
    for (nyx::ColorId const color : syncColors_) {
        colorDB_->postColorUpdateSyncEvent(color);
    }
}

bool ZEditColorCommand::mergeWith(ZUndoCommand const* other) {
    if (!other || other->id() != id()) {
        return false;
    }
    auto const* const later = dynamic_cast<ZEditColorCommand const*>(other);
    int const setColor = static_cast<int>(ColorEditKind::Color);
    if (!later || mergeMode_ != 0 || kind_ != setColor || later->kind_ != setColor) {
        return false;
    }
    mergeMode_ = later->mergeMode_;
    after_ = later->after_->copyFor(later->after_->id());
    return true;
}

ZToggleMultiColorCommand::ZToggleMultiColorCommand(ColorDB* colorDB,
                                                   std::vector<nyx::ColorId>&& colors)
    : ZUndoCommand(ZCommandId::EditColor), colorDB_(colorDB), colors_(std::move(colors)) {}

bool ZToggleMultiColorCommand::undo() { return redo(); }

bool ZToggleMultiColorCommand::redo() {
    for (nyx::ColorId const color : colors_) {
        colorDB_->postColorUpdateSyncEvent(color);
    }
    return true;
}

} // namespace zsg
