#pragma once

#include "zsg/Export.h"

#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"
#include "nyxrender/nyxColor.h"

#include <string>

namespace zsg {

// What can be read of one colour, one colorway and the colour settings: the state of a record when
// the renderer handed it out, with the changes made since, committed or not. All on the main
// thread. What a record lacks reads as its default: the invalid id, an empty text, an empty list,
// opaque black, no flags. A returned list is valid until the next call that can change or re-read
// the record; who posts events or calls out while walking it copies it first.

/// The flag bits of colour and colorway records.
using ColorFlags = nyxColor_flags;
using ColorwayFlags = nyxColorway_flags;

/// One colour.
class ZSG_EXPORT IColorExtEdit {
public:
    virtual ~IColorExtEdit();
    [[nodiscard]] virtual nyx::ColorId id() const = 0;
    /// UTF-8.
    [[nodiscard]] virtual std::string displayName() const = 0;
    [[nodiscard]] virtual std::string originalName() const = 0;
    /// The record's own value, linear with alpha; of a multi-colour it is not what is shown.
    [[nodiscard]] virtual nyxColor_rgba color() const = 0;
    /// True when any bit of `mask` (ColorFlags) is set.
    [[nodiscard]] virtual bool hasFlag(unsigned mask) const = 0;
    [[nodiscard]] virtual nyx::Span<nyx::ColorId> subColors() const = 0;
    [[nodiscard]] virtual nyx::ColorId activeSub() const = 0;
    /// Whether there are changes that no commit has written yet.
    [[nodiscard]] virtual bool isModified() const = 0;
    /// False for every id when the colour is no multi-colour, whatever its list holds.
    [[nodiscard]] virtual bool hasSubColor(nyx::ColorId sub) const = 0;
    /// Counts the changes made through this object; a commit does not reset it.
    [[nodiscard]] virtual unsigned revision() const = 0;
};

/// One colorway: for each multi-colour that it covers, the sub-colour that it makes active.
class ZSG_EXPORT IColorwayEdit {
public:
    virtual ~IColorwayEdit();
    [[nodiscard]] virtual nyx::ColorwayId id() const = 0;
    /// UTF-8.
    [[nodiscard]] virtual std::string displayName() const = 0;
    [[nodiscard]] virtual nyx::Span<nyx::ColorId> multiColors() const = 0;
    /// The ids (not positions) of the active sub-colours, in step with multiColors().
    [[nodiscard]] virtual nyx::Span<nyx::ColorId> activeSubIndices() const = 0;
    /// The active sub-colour at the first position that lists `multi`.
    [[nodiscard]] virtual nyx::ColorId activeSubOf(nyx::ColorId multi) const = 0;
    [[nodiscard]] virtual bool isDeleted() const = 0;
    [[nodiscard]] virtual bool isActive() const = 0;
    [[nodiscard]] virtual bool containsMultiColor(nyx::ColorId multi) const = 0;
    /// Whether there are changes that no commit has written yet.
    [[nodiscard]] virtual bool isModified() const = 0;
};

/// The settings that all colours share.
class ZSG_EXPORT IColorSettingsEdit {
public:
    virtual ~IColorSettingsEdit();
    [[nodiscard]] virtual nyx::ColorwayId activeColorwayId() const = 0;
    /// Whether there are changes that no commit has written yet.
    [[nodiscard]] virtual bool isModified() const = 0;
};

} // namespace zsg
