#include "colors/ColorCommands.h"

#include "colors/colorwayAccess.h"
#include "core/FirstException.h"
#include "zsg/colors/ColorDB.h"
#include "zsg/colors/ZColorSettingsEdit.h"

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

/// "(%1)" filled with a name, or nothing.
QString inBrackets(std::string const& name) {
    return name.empty() ? QString() : '(' + QString::fromStdString(name) + ')';
}

template <std::size_t N, class Edit>
QString editText(char const* context, std::array<char const*, N> const& texts,
                 char const* clearName, int kind, Edit const& after) {
    if (kind < 0 || static_cast<std::size_t>(kind) >= N) {
        return {};
    }
    QString const value = inBrackets(after.displayName());
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
    : ZUndoCommand(ZCommandId::CreateColorway, text),
      colorDB_(colorDB, colorDB->aliveGuard()),
      colorway_(colorway) {}

bool ZCreateColorwayCommand::undo() { return setDeleted(true); }

bool ZCreateColorwayCommand::redo() { return setDeleted(false); }

bool ZCreateColorwayCommand::setDeleted(bool deleted) {
    ColorDB* const colorDB = colorDB_.get();
    return colorDB && setColorwayFlag(*colorDB, colorway_, &ZColorwayEdit::setDeleted, deleted);
}

ZActivateColorwayCommand::ZActivateColorwayCommand(ColorDB* colorDB, nyx::ColorwayId colorway)
    : ZUndoCommand(ZCommandId::ActivateColorway),
      colorDB_(colorDB, colorDB->aliveGuard()),
      colorway_(colorway) {
    ZColorwayEdit const* const edit = colorDB->getColorwayParameters(colorway);
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
        ZColorExtEdit const* const color = colorDB->getColorParameters(multi);
        sub = color ? color->activeSub() : nyx::ColorId();
    }
    otherActive_ = colorwaysWhere(*colorDB, [](ZColorwayEdit const& e) { return e.isActive(); });
    std::erase(otherActive_, colorway);
}

bool ZActivateColorwayCommand::undo() {
    auto const start = std::exchange(interrupted_, std::nullopt);
    if (!start) {
        return switchTo(undoSubs_, false, true);
    }
    // What an interrupted redo() has not reached is as it was, and nothing else would tell the
    // settings again which colorway is active.
    FirstException thrown;
    thrown.keep([&] { switchTo(undoSubs_, start->wasActive, true); });
    ColorDB* const colorDB = colorDB_.get();
    if (ZColorSettingsEdit* const settings =
            colorDB ? colorDB->getColorSettingsParameters() : nullptr) {
        thrown.keep([&] {
            settings->setActiveColorwayId(start->named);
            settings->commit(false);
        });
    }
    thrown.pass();
    return true;
}

bool ZActivateColorwayCommand::redo() {
    if (ColorDB* const colorDB = colorDB_.get()) {
        ZColorwayEdit const* const edit = colorDB->getColorwayParameters(colorway_);
        interrupted_ = {edit && edit->isActive(), colorDB->activeColorwayId()};
    }
    bool const done = switchTo(redoSubs_, true, false);
    interrupted_.reset();
    return done;
}

bool ZActivateColorwayCommand::switchTo(std::vector<MultiColorPair> const& pairs, bool isActive,
                                        bool areOthersActive) {
    ColorDB* const colorDB = colorDB_.get();
    if (!colorDB) {
        return false;
    }
    FirstException thrown;
    for (MultiColorPair const& pair : pairs) {
        ZColorExtEdit* const edit = colorDB->getColorParameters(pair.multiColor);
        if (!edit) {
            thrown.pass();
            return false;
        }
        thrown.keep([&] {
            edit->setActiveSub(pair.subColor);
            colorDB->pushColor(pair.multiColor);
        });
    }
    auto const setActive = [&](nyx::ColorwayId colorway, bool active) {
        thrown.keep(
            [&] { setColorwayFlag(*colorDB, colorway, &ZColorwayEdit::setActive, active); });
    };
    setActive(colorway_, isActive);
    for (nyx::ColorwayId const other : otherActive_) {
        setActive(other, areOthersActive);
    }
    thrown.pass();
    return true;
}

ZEditColorWayCommand::ZEditColorWayCommand(int kind, ColorDB* colorDB,
                                           std::unique_ptr<ZColorwayEdit>&& before,
                                           std::unique_ptr<ZColorwayEdit>&& after)
    : ZUndoCommand(ZCommandId::EditColorway),
      kind_(kind),
      colorDB_(colorDB, colorDB->aliveGuard()),
      before_(std::move(before)),
      after_(std::move(after)) {}

ZEditColorWayCommand::~ZEditColorWayCommand() = default;

QString ZEditColorWayCommand::text() const {
    return editText("ZEditColorWayCommand", colorwayTexts, clearColorwayName, kind_, *after_);
}

bool ZEditColorWayCommand::undo() { return install(*before_); }

bool ZEditColorWayCommand::redo() { return install(*after_); }

bool ZEditColorWayCommand::install(ZColorwayEdit const& state) {
    ColorDB* const colorDB = colorDB_.get();
    if (colorDB) {
        colorDB->setColorwayEdit(&state);
    }
    return colorDB != nullptr;
}

ZEditColorCommand::ZEditColorCommand(int kind, ColorDB* colorDB,
                                     std::unique_ptr<ZColorExtEdit>&& before,
                                     std::unique_ptr<ZColorExtEdit>&& after, int mergeMode)
    : ZUndoCommand(ZCommandId::EditColor),
      kind_(kind),
      colorDB_(colorDB, colorDB->aliveGuard()),
      before_(std::move(before)),
      after_(std::move(after)),
      mergeMode_(mergeMode) {
    if (!after_->hasFlag(ColorFlags::MultiColor)) {
        return;
    }
    nyx::ColorId const id = after_->id();
    deactivateOnRedo_ = colorwaysWhere(*colorDB, [&](ZColorwayEdit const& colorway) {
        return colorway.isActive() && colorway.containsMultiColor(id) &&
               colorway.activeSubOf(id) != after_->activeSub();
    });
}

ZEditColorCommand::~ZEditColorCommand() = default;

QString ZEditColorCommand::text() const {
    return editText("ZEditColorCommand", colorTexts, clearColorName, kind_, *after_);
}

void ZEditColorCommand::setUndeleteOnRedo(std::vector<nyx::ColorwayId> colorways) {
    undeleteOnRedo_ = std::move(colorways);
}

void ZEditColorCommand::setSyncColors(std::vector<nyx::ColorId> colors) {
    syncColors_ = std::move(colors);
}

bool ZEditColorCommand::undo() { return install(*before_, false); }

bool ZEditColorCommand::redo() { return install(*after_, true); }

bool ZEditColorCommand::install(ZColorExtEdit const& state, bool redo) {
    ColorDB* const colorDB = colorDB_.get();
    if (!colorDB) {
        return false;
    }
    FirstException thrown;
    thrown.keep([&] { colorDB->setColorEdit(&state); });
    auto const setFlags = [&](std::vector<nyx::ColorwayId> const& colorways,
                              void (ZColorwayEdit::*flag)(bool)) {
        for (nyx::ColorwayId const colorway : colorways) {
            thrown.keep([&] { setColorwayFlag(*colorDB, colorway, flag, !redo); });
        }
    };
    setFlags(deactivateOnRedo_, &ZColorwayEdit::setActive);
    setFlags(undeleteOnRedo_, &ZColorwayEdit::setDeleted);
    for (nyx::ColorId const color : syncColors_) {
        thrown.keep([&] { colorDB->postColorUpdateSyncEvent(color); });
    }
    thrown.pass();
    return true;
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
    : ZUndoCommand(ZCommandId::EditColor),
      colorDB_(colorDB, colorDB->aliveGuard()),
      colors_(std::move(colors)) {}

bool ZToggleMultiColorCommand::undo() { return redo(); }

bool ZToggleMultiColorCommand::redo() {
    ColorDB* const colorDB = colorDB_.get();
    if (!colorDB) {
        return false;
    }
    for (nyx::ColorId const color : colors_) {
        colorDB->postColorUpdateSyncEvent(color);
    }
    return true;
}

} // namespace zsg
