#pragma once

#include "zsg/Export.h"

#include "nyxrender/Ids.h"

#include <compare>
#include <cstdint>
#include <string>
#include <vector>

namespace zsg {

/// A place of a material to which a colour can be bound: a parameter of one of its shader nodes.
struct MaterialColorPlace {
    std::uint32_t node = 0;
    std::string parameter;

    friend auto operator<=>(MaterialColorPlace const&, MaterialColorPlace const&) = default;
};

/// The editing side of one material. Changes are made between beginEdit() and endEdit(), and
/// endEdit() records them as one undoable step on the application's undo stack. Main thread.
/// Implemented by the application.
class ZSG_EXPORT IMaterialEdit {
public:
    virtual ~IMaterialEdit() = default;
    /// The places that `color` itself is bound to, in the material's own order.
    [[nodiscard]] virtual std::vector<MaterialColorPlace> colorPlaces(nyx::ColorId color) const = 0;
    /// Opens an edit; edits do not nest.
    virtual void beginEdit() = 0;
    /// Binds a place to another colour; an unknown place is ignored. Only within an open edit.
    virtual void bindColor(MaterialColorPlace const& place, nyx::ColorId color) = 0;
    /// Closes the edit; one that changed nothing records nothing.
    virtual void endEdit() = 0;
};

/// Keeps the material edits of a scene. Main thread. Implemented by the application.
class ZSG_EXPORT ISceneMaterialManager {
public:
    virtual ~ISceneMaterialManager() = default;
    /// The edit of a material, owned by the manager; null when none has been made.
    [[nodiscard]] virtual IMaterialEdit* materialEdit(nyx::MaterialId material) = 0;
    /// Makes the edit of a material, or finds it; null for an unknown material.
    virtual IMaterialEdit* createMaterialEdit(nyx::MaterialId material) = 0;
    /// Whether any object of the scene uses the material.
    [[nodiscard]] virtual bool isMaterialInUse(nyx::MaterialId material) const = 0;
};

} // namespace zsg
