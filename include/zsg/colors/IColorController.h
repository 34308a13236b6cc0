#pragma once

#include "zsg/Export.h"
#include "zsg/colors/MultiColorPair.h"
#include "zsg/colors/ScopedMacro.h"

#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"
#include "zcore/ZColor.h"
#include "zcore/ZColorExt.h"

#include <QString>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace zsg {

class IColorDB;

/// Whether a later "Set Color" may become one undo step with the one that carries this value. A
/// drag in a colour picker passes Yes while it lasts; the first change that passes No ends the
/// step.
enum class AllowForwardUndoMerge : std::int32_t { Yes = 0, No = 1 };

/// Edits colours and colorways so that the user can undo it: each operation pushes one command on
/// the application's undo stack, or one macro where it says so. Main thread only.
///
/// Unknown ids and edits that do not qualify are quietly ignored: nothing is pushed, and an id that
/// would be returned is the invalid one. An operation that qualifies pushes its command even when
/// it changes nothing. Records that an operation makes stay in the scene when it is undone; what
/// else undo does not restore is listed in docs/undo.md.
class ZSG_EXPORT IColorController {
public:
    /// An element of a colour whose name belongs to a colour that is in use with another value.
    struct ColorConflict {
        int index = 0; ///< of the element
        std::string name;
        nyx::ColorId existing;
    };

    virtual ~IColorController();

    [[nodiscard]] virtual IColorDB* colorDB() const = 0;
    /// Collects what is pushed while the result lives into one undo step.
    [[nodiscard]] virtual std::unique_ptr<ScopedMacro> getScopedMacro(QString text) = 0;

    /// Makes a colour of that value and name and adds it to a multi-colour before position `index`
    /// (negative: at the end). It does not become active. Returns the new colour.
    virtual nyx::ColorId addSubColor(nyx::ColorId multi, ZColor const& color, int index) = 0;
    /// The same for each colour, added at the end in one step.
    virtual void addSubKColors(nyx::ColorId multi, nyx::Span<ZColor> const& colors) = 0;
    /// Makes `sub` the active sub-colour: itself, added when it is not listed yet, with `link`;
    /// else a new sub-colour of its value. Returns the one that is active now.
    virtual nyx::ColorId addOrSwitchSubColor(nyx::ColorId multi, nyx::ColorId sub, bool link) = 0;
    /// Binds every place of the scene's materials that uses `from` itself to `to`; a macro.
    virtual void linkColor(nyx::ColorId from, nyx::ColorId to) = 0;
    /// Turns a plain colour into a new multi-colour that holds it and takes over its materials, or
    /// a multi-colour back into its active sub-colour, out of all colorways; a macro. Returns the
    /// colour that the materials use now. The multi-colour's record stays in the scene. Throws
    /// std::bad_optional_access, before anything is changed, when an unnamed plain colour cannot be
    /// given a name.
    virtual nyx::ColorId toggleMultiColor(nyx::ColorId id) = 0;
    /// Sets the value, and the name when the colour carries one.
    virtual void setColor(nyx::ColorId id, ZColor const& color, AllowForwardUndoMerge merge) = 0;
    virtual void setDisplayName(nyx::ColorwayId id, std::string const& name) const = 0;
    virtual void setDisplayName(nyx::ColorId id, std::string const& name) const = 0;
    /// When the active sub-colour goes, the one that now stands in its place becomes active (the
    /// last one when it was the last). Colorways that made a removed sub-colour active take the
    /// multi-colour's new active one, or lose the multi-colour when it has none left; then the step
    /// is a macro. False when `multi` is no multi-colour or nothing could be pushed.
    virtual bool removeSubColors(nyx::ColorId multi, nyx::Span<nyx::ColorId> subs) const = 0;
    /// Adds colours before position `index` (negative or too large: at the end), in the given
    /// order; those already listed are moved, except that when every listed one is given they are
    /// added again. `active`, when valid, becomes the active one.
    virtual void addSubColors(nyx::ColorId multi, nyx::Span<nyx::ColorId> subs, int index,
                              nyx::ColorId active) const = 0;
    /// Moves listed sub-colours before position `index` (as addSubColors does); others are left
    /// out. `active`, when it is listed, becomes the active one.
    virtual void moveSubColors(nyx::ColorId multi, nyx::Span<nyx::ColorId> subs, int index,
                               nyx::ColorId active) const = 0;
    /// Replaces the whole list; the active sub-colour stays as it is.
    virtual void setSubColors(nyx::ColorId multi, nyx::Span<nyx::ColorId> subs) const = 0;
    virtual void setActiveSubColor(nyx::ColorId multi, nyx::ColorId sub) const = 0;
    /// Puts `newSub` in the place of `oldSub`, also as the active one.
    virtual void changeSubColor(nyx::ColorId multi, nyx::ColorId oldSub, nyx::ColorId newSub) = 0;
    /// Sets or clears flag bits (ColorFlags) of a plain colour; refused for multi-colours.
    virtual void setFlags(nyx::ColorId id, int flags, bool on) const = 0;
    /// Replaces the sub-colour at `index` by a clone of it, which becomes active.
    virtual void unlinkSubColor(nyx::ColorId multi, unsigned int index) const = 0;

    /// How many materials that objects use are using the colour, itself or through a multi-colour.
    [[nodiscard]] virtual unsigned int activeReferenceCount(nyx::ColorId id) const = 0;
    [[nodiscard]] virtual bool anyMultiColorInUse() const = 0;
    /// The elements of `color` that cannot be brought in under their names without overwriting a
    /// colour in use: one of that name exists, and a component differs by 1e-4 or more.
    [[nodiscard]] virtual std::vector<ColorConflict> checkForConflict(ZColorExt color) = 0;

    /// A new colorway with these pairs; the invalid id for an empty name.
    virtual nyx::ColorwayId createColorway(std::string const& name,
                                           nyx::Span<MultiColorPair> pairs) = 0;
    virtual void applyColorway(nyx::ColorwayId id) const = 0;
    /// Replaces the colorway's pairs.
    virtual void setColors(nyx::ColorwayId id, nyx::Span<MultiColorPair> pairs) const = 0;
    /// Adds pairs before position `index` (negative or too large: at the end). A multi-colour that
    /// is listed already gets the new sub-colour only with `replace`.
    virtual void addColors(nyx::ColorwayId id, nyx::Span<MultiColorPair> pairs, int index,
                           bool replace) const = 0;
    virtual void removeMultiColors(nyx::ColorwayId id, nyx::Span<nyx::ColorId> multis) const = 0;
    /// Marks a colorway as deleted, or brings it back; it keeps its record.
    virtual void setDeleted(nyx::ColorwayId id, bool deleted) const = 0;
};

} // namespace zsg
