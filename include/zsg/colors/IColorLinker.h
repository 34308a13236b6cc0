#pragma once

#include "zsg/Export.h"

#include "nyxrender/Ids.h"
#include "zcore/ZColorExt.h"

#include <string>

namespace zsg {

class IColorController;
class IColorDB;

/// Brings colours from elsewhere into the scene and settles conflicts between names. Made by
/// IColorDB::getColorLinker; it must not outlive the controller. Main thread.
class ZSG_EXPORT IColorLinker {
public:
    virtual ~IColorLinker();
    /// A name like `name` that no colour of the scene has; empty when there is none.
    [[nodiscard]] virtual std::string uniqueColorName(std::string const& name) = 0;
    /// Brings `color` in: each element whose name belongs to a colour in use with another value is
    /// linked to that colour or renamed, as the handler decides; then the colour is pushed. `color`
    /// comes back with the ids and names that it has in the scene; the result is its id.
    virtual nyx::ColorId importColor(ZColorExt& color) = 0;
    /// Adds those sub-colours of `from` that `to` lacks at the end of `to`, as one undoable edit.
    /// Ignored unless both are multi-colours.
    virtual void mergeSubColors(nyx::ColorId to, nyx::ColorId from) = 0;
    /// What the linker was made over, borrowed; the database is the controller's own.
    [[nodiscard]] virtual IColorController* controller() const = 0;
    [[nodiscard]] virtual IColorDB* colorDB() const = 0;
};

} // namespace zsg
