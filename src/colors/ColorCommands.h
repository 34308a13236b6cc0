#pragma once

#include "core/AliveGuard.h"
#include "zsg/colors/MultiColorPair.h"
#include "zsg/colors/ZColorExtEdit.h"
#include "zsg/colors/ZColorwayEdit.h"

#include "nyxrender/Ids.h"
#include "zcore/ZUndoCommand.h"

#include <memory>
#include <optional>
#include <vector>

namespace zsg {

class ColorDB;

// The undo commands of colours and colorways. They change the scene through ColorDB and refer to
// records by id. When the database is gone, undo and redo fail and touch nothing.

/// What an edit of a colour does; it decides the text.
enum class ColorEditKind : int {
    Name = 0,
    Color = 1, ///< the only kind that merges
    RemoveSubColor = 2,
    SwitchSubColor = 3,
    AddSubColor = 4,
    UnlinkSubColor = 5,
    MoveSubColor = 6,
    Modify = 7,
};

enum class ColorwayEditKind : int {
    Name = 0,
    Colors = 1,
    Delete = 2, ///< also when the colorway is brought back
};

/// Redo brings the colorway back, undo marks it as deleted; both fail when it has no edit.
class ZCreateColorwayCommand final : public ZUndoCommand {
public:
    ZCreateColorwayCommand(QString const& text, ColorDB* colorDB, nyx::ColorwayId colorway);
    bool undo() override;
    bool redo() override;

private:
    bool setDeleted(bool deleted);

    GuardedPointer<ColorDB> colorDB_;
    nyx::ColorwayId colorway_;
};

/// Switches multi-colours and the active flags of colorways. Undo and redo stop, with false, at the
/// first multi-colour that has no edit.
class ZActivateColorwayCommand final : public ZUndoCommand {
public:
    /// An unknown colorway leaves the command empty.
    ZActivateColorwayCommand(ColorDB* colorDB, nyx::ColorwayId colorway);
    bool undo() override;
    bool redo() override;

private:
    struct Start {
        bool wasActive;
        nyx::ColorwayId named; ///< by the settings
    };

    bool switchTo(std::vector<MultiColorPair> const& pairs, bool isActive, bool areOthersActive);

    GuardedPointer<ColorDB> colorDB_;
    std::vector<MultiColorPair> undoSubs_;
    std::vector<MultiColorPair> redoSubs_;
    std::vector<nyx::ColorwayId> otherActive_;
    nyx::ColorwayId colorway_;
    std::optional<Start> interrupted_; ///< where redo() began, until it has come to its end
};

/// Installs whole states of one colorway.
class ZEditColorWayCommand final : public ZUndoCommand {
public:
    ZEditColorWayCommand(int kind, ColorDB* colorDB, std::unique_ptr<ZColorwayEdit>&& before,
                         std::unique_ptr<ZColorwayEdit>&& after);
    ~ZEditColorWayCommand() override;
    /// In the language of the moment, with the name of the after-state; setText() is not heeded.
    [[nodiscard]] QString text() const override;
    bool undo() override;
    bool redo() override;

private:
    bool install(ZColorwayEdit const& state);

    int kind_;
    GuardedPointer<ColorDB> colorDB_;
    std::unique_ptr<ZColorwayEdit> before_;
    std::unique_ptr<ZColorwayEdit> after_;
};

/// Installs whole states of one colour. A colorway that is active but makes another sub-colour
/// active than the after-state does is no longer active after redo, and is again after undo.
class ZEditColorCommand final : public ZUndoCommand {
public:
    ZEditColorCommand(int kind, ColorDB* colorDB, std::unique_ptr<ZColorExtEdit>&& before,
                      std::unique_ptr<ZColorExtEdit>&& after, int mergeMode);
    ~ZEditColorCommand() override;
    /// As ZEditColorWayCommand's.
    [[nodiscard]] QString text() const override;

    /// Colorways that redo brings back, and that undo marks as deleted again.
    void setUndeleteOnRedo(std::vector<nyx::ColorwayId> colorways);
    /// Further colours to announce after undo and redo.
    void setSyncColors(std::vector<nyx::ColorId> colors);

    bool undo() override;
    bool redo() override;
    /// A "Set Color" takes over the after-state and the merge mode of the "Set Color" behind it, as
    /// long as its own merge mode is 0. Whose colours they are is not asked: a change of another
    /// colour merges as well, and then only that one is set by redo and only the first by undo.
    bool mergeWith(ZUndoCommand const* other) override;

private:
    bool install(ZColorExtEdit const& state, bool redo);

    int kind_;
    GuardedPointer<ColorDB> colorDB_;
    std::unique_ptr<ZColorExtEdit> before_;
    std::unique_ptr<ZColorExtEdit> after_;
    std::vector<nyx::ColorwayId> deactivateOnRedo_;
    std::vector<nyx::ColorwayId> undeleteOnRedo_;
    std::vector<nyx::ColorId> syncColors_;
    int mergeMode_;
};

/// Changes nothing: announces colours whose meaning a macro changes around it.
class ZToggleMultiColorCommand final : public ZUndoCommand {
public:
    ZToggleMultiColorCommand(ColorDB* colorDB, std::vector<nyx::ColorId>&& colors);
    bool undo() override;
    bool redo() override;

private:
    GuardedPointer<ColorDB> colorDB_;
    std::vector<nyx::ColorId> colors_;
};

} // namespace zsg
