#pragma once

#include "zsg/Export.h"
#include "zsg/colors/IColorLinker.h"
#include "zsg/colors/MultiColorPair.h"
#include "zsg/colors/ScopedRTApiLock.h"

#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"
#include "nyxrender/nyxColor.h"
#include "zcore/ZColorExt.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace zsg {

class IColorController;
class IColorLinkHandler;
class ZColorExtEdit;
class ZColorSettingsEdit;
class ZColorwayEdit;

/// The colours and colorways of the renderer's scene. Changes made here are announced but cannot be
/// undone; IColorController makes the undoable ones. Main thread only. What it has read belongs to
/// one scene, so it must not see another one being loaded: clear the undo stack, end the root,
/// load, create a new root.
///
/// Unknown ids never fail loudly: they give null edits, empty names and lists, default colours, the
/// invalid id, and operations on them stop quietly. Edits are owned by the database and are valid
/// until the next call that can replace them, so also until events are posted. A returned span is
/// valid until the next call that can refill it; copy it before calling out in a loop. A change
/// made through an edit reaches the renderer when the edit is committed (pushColor, pushColorway).
class ZSG_EXPORT IColorDB {
public:
    virtual ~IColorDB();

    // Names. The lock, from createRtApiLock(), proves that the caller holds it. Empty and unknown
    // names give the invalid id.

    /// The first plain colour of that name that the scene uses.
    [[nodiscard]] virtual nyx::ColorId colorFromName(ScopedRTApiLock& lock,
                                                     std::string const& name) = 0;
    /// The first of that name, used or not.
    [[nodiscard]] virtual nyx::ColorId multiColorFromName(ScopedRTApiLock& lock,
                                                          std::string const& name) = 0;
    [[nodiscard]] virtual nyx::ColorwayId colorwayFromName(ScopedRTApiLock& lock,
                                                           std::string const& name) = 0;

    /// The colour's edit, read from the renderer at the first call; null for an unknown id, which
    /// is asked for again next time.
    virtual ZColorExtEdit* getColorParameters(nyx::ColorId id) = 0;
    /// The settings' edit, read at the first call; null while the renderer has none.
    virtual ZColorSettingsEdit* getColorSettingsParameters() = 0;

    /// A name like `name` that no colour has, those of `colors` not counted; nothing when there is
    /// none.
    [[nodiscard]] virtual std::optional<std::string>
    findUniqueColorName(std::string const& name, nyx::Span<nyx::ColorId> colors,
                        nyxColor_extended::ColorType type) = 0;

    /// Writes a colour and its sub-colours into the scene, making the records that it has no id
    /// for; `color` then holds the ids, and the unique name of a new colour. An id that could not
    /// be made stays invalid.
    virtual void pushColor(ZColorExt& color) = 0;
    /// Commits the colour's edit and announces the colour and its sub-colours; nothing happens when
    /// the colour has no edit or the edit no change.
    virtual void pushColor(nyx::ColorId id) = 0;
    /// Writes `color` into the one temporary colour, for previews; `color` gets its id.
    virtual void pushTempColor(ZColorExt& color) = 0;
    /// Ignored unless the sub-colour is one of the multi-colour's and not yet active.
    virtual void setActiveSubColor(MultiColorPair const& pair) = 0;
    /// The colour as a value, from its edit and those of its sub-colours, uncommitted changes
    /// included. Sub-colours without a record are left out, but count for the active index.
    [[nodiscard]] virtual ZColorExt colorFromId(nyx::ColorId id) = 0;
    /// The colour's id; a colour without one is pushed first.
    virtual nyx::ColorId idFromColor(ZColorExt color) = 0;
    /// How many places of the scene's materials use the colour, itself or through a multi-colour.
    [[nodiscard]] virtual unsigned int totalSceneReferenceCount(nyx::ColorId id) const = 0;

    /// A new colour with the same values and a unique name; a clone of a multi-colour lists the
    /// same sub-colours. The invalid id when none could be made.
    virtual nyx::ColorId clone(nyx::ColorId id) = 0;
    /// As clone(), with each sub-colour cloned too.
    virtual nyx::ColorId cloneRecursively(nyx::ColorId id) = 0;
    /// A new multi-colour, named after the colour, with the colour as its only sub-colour.
    virtual nyx::ColorId multiColorFromColor(nyx::ColorId id) = 0;

    /// The colorway's edit, read from the renderer at the first call; null for an unknown id. That
    /// first call takes the pairs of unused multi-colours out, as checkForUnusedMultiColors() does.
    virtual ZColorwayEdit* getColorwayParameters(nyx::ColorwayId id) = 0;
    /// Takes multi-colours that no material uses out of the colorway's edit. This is not committed:
    /// the next commit, for whatever reason, writes it. Ignored when the colorway has no edit.
    virtual void checkForUnusedMultiColors(nyx::ColorwayId id) = 0;
    /// Commits the colorway's edit, follows its active flag in the settings, and announces it;
    /// nothing happens when the colorway has no edit or the edit no change.
    virtual void pushColorway(nyx::ColorwayId id) = 0;
    /// Makes the colorway the only active one and switches its multi-colours; pairs whose
    /// sub-colour no longer belongs to the multi-colour are skipped. A colorway without pairs is
    /// not applied.
    virtual void applyColorway(nyx::ColorwayId id) = 0;

    // Lists, in creation order, without the temporary colour.

    [[nodiscard]] virtual nyx::Span<nyx::ColorId> colors() = 0;
    [[nodiscard]] virtual std::vector<nyx::ColorId> namedColors() = 0;
    [[nodiscard]] virtual nyx::Span<nyx::ColorId> multiColors() = 0;
    [[nodiscard]] virtual nyx::Span<nyx::ColorwayId> colorways() = 0;
    /// Whether the scene uses any multi-colour.
    [[nodiscard]] virtual bool anyMultiColorsInScene() = 0;
    /// The materials that use a colour, ascending. Bit 0 of `how`: bound directly; bit 1: through a
    /// multi-colour that lists it. `unassigned`: also materials that no object uses.
    [[nodiscard]] virtual std::vector<nyx::MaterialId>
    getMaterialsUsingColor(nyx::ColorId id, unsigned int how, bool unassigned) = 0;

    [[nodiscard]] virtual std::unique_ptr<ScopedRTApiLock> createRtApiLock() = 0;

    /// What the settings name; the invalid id and an empty text when no colorway is active.
    [[nodiscard]] virtual nyx::ColorwayId activeColorwayId() = 0;
    [[nodiscard]] virtual std::string activeColorwayName() = 0;
    [[nodiscard]] virtual std::string colorwayName(nyx::ColorwayId id) = 0;

    /// A linker over a controller and its database; both arguments are borrowed by it. Null without
    /// a controller.
    [[nodiscard]] virtual std::unique_ptr<IColorLinker>
    getColorLinker(IColorController* controller, IColorLinkHandler* handler) = 0;

    /// To be called when the renderer has switched to a colorway by itself: reads that colorway and
    /// its multi-colours again and announces them. Uncommitted changes to them are lost; the edits
    /// of the settings and of other colorways stay as they were read.
    virtual void handleColorwayActivated(nyx::ColorwayId const& id) = 0;
};

} // namespace zsg
