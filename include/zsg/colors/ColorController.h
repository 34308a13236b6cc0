#pragma once

#include "zsg/colors/IColorController.h"

#include <functional>
#include <optional>

class ZUndoCommand;
class ZUndoStack;

namespace zsg {

class ColorDB;
class ISceneMaterialManager;
class ZColorExtEdit;
class ZColorwayEdit;

/// Edits through a ColorDB. It keeps nothing but its three borrowed pointers and may be copied.
class ZSG_EXPORT ColorController : public IColorController {
public:
    /// Without a material manager no material is re-linked or counted; without an undo stack every
    /// command is done once and cannot be undone.
    ColorController(ColorDB* colorDB, ISceneMaterialManager* materialManager,
                    ZUndoStack* undoStack);
    ~ColorController() override;
    ColorController(ColorController const&);
    ColorController& operator=(ColorController const&);

    [[nodiscard]] IColorDB* colorDB() const override;
    [[nodiscard]] std::unique_ptr<ScopedMacro> getScopedMacro(QString text) override;
    nyx::ColorId addSubColor(nyx::ColorId multi, ZColor const& color, int index) override;
    void addSubKColors(nyx::ColorId multi, nyx::Span<ZColor> const& colors) override;
    nyx::ColorId addOrSwitchSubColor(nyx::ColorId multi, nyx::ColorId sub, bool link) override;
    void linkColor(nyx::ColorId from, nyx::ColorId to) override;
    nyx::ColorId toggleMultiColor(nyx::ColorId id) override;
    void setColor(nyx::ColorId id, ZColor const& color, AllowForwardUndoMerge merge) override;
    void setDisplayName(nyx::ColorwayId id, std::string const& name) const override;
    void setDisplayName(nyx::ColorId id, std::string const& name) const override;
    bool removeSubColors(nyx::ColorId multi, nyx::Span<nyx::ColorId> subs) const override;
    void addSubColors(nyx::ColorId multi, nyx::Span<nyx::ColorId> subs, int index,
                      nyx::ColorId active) const override;
    void moveSubColors(nyx::ColorId multi, nyx::Span<nyx::ColorId> subs, int index,
                       nyx::ColorId active) const override;
    void setSubColors(nyx::ColorId multi, nyx::Span<nyx::ColorId> subs) const override;
    void setActiveSubColor(nyx::ColorId multi, nyx::ColorId sub) const override;
    void changeSubColor(nyx::ColorId multi, nyx::ColorId oldSub, nyx::ColorId newSub) override;
    void setFlags(nyx::ColorId id, int flags, bool on) const override;
    void unlinkSubColor(nyx::ColorId multi, unsigned int index) const override;
    [[nodiscard]] unsigned int activeReferenceCount(nyx::ColorId id) const override;
    [[nodiscard]] bool anyMultiColorInUse() const override;
    [[nodiscard]] std::vector<ColorConflict> checkForConflict(ZColorExt color) override;
    nyx::ColorwayId createColorway(std::string const& name,
                                   nyx::Span<MultiColorPair> pairs) override;
    void applyColorway(nyx::ColorwayId id) const override;
    void setColors(nyx::ColorwayId id, nyx::Span<MultiColorPair> pairs) const override;
    void addColors(nyx::ColorwayId id, nyx::Span<MultiColorPair> pairs, int index,
                   bool replace) const override;
    void removeMultiColors(nyx::ColorwayId id, nyx::Span<nyx::ColorId> multis) const override;
    void setDeleted(nyx::ColorwayId id, bool deleted) const override;

private:
    void linkMaterialColors(nyx::ColorId from, nyx::ColorId to);

    nyx::ColorId enableMultiColor(nyx::ColorId id, std::optional<std::string> const& name);
    nyx::ColorId disableMultiColor(nyx::ColorId id);
    nyx::ColorId createSubColor(ZColor const& color);
    [[nodiscard]] ZColorExtEdit* multiColorEdit(nyx::ColorId id) const;
    bool push(std::unique_ptr<ZUndoCommand> command) const;
    bool pushEdit(int kind, ZColorExtEdit const& edit,
                  std::function<void(ZColorExtEdit&)> const& change,
                  AllowForwardUndoMerge merge = AllowForwardUndoMerge::Yes) const;
    bool pushEdit(int kind, ZColorwayEdit const& edit,
                  std::function<void(ZColorwayEdit&)> const& change) const;

    ColorDB* colorDB_;
    ISceneMaterialManager* materialManager_;
    ZUndoStack* undoStack_;
};

} // namespace zsg
