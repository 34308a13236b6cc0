#pragma once

#include "nyxrender/Ids.h"

#include <QString>

#include <cstdint>
#include <vector>

namespace zsg {
class IMaterialEdit;
}

namespace workbench {

/// What a scene holds that the library keeps no list of, because the renderer does. The program
/// around the panels knows its renderer and answers.
class SceneContents {
public:
    /// A group, an object or a light.
    struct Item {
        nyx::GroupItemId id; ///< also its ObjectId, unless it is a group
        nyx::GroupItemId parent;
        QString name;
        bool isLight = false;
        bool isUnlisted = false; ///< a light that lists of light layers leave out
    };
    /// A parameter of a material to which a colour can be bound.
    struct Place {
        std::uint32_t node = 0;
        QString parameter;
        nyx::ColorId color; ///< invalid: none

        bool operator==(Place const&) const = default;
    };

    virtual ~SceneContents() = default;

    /// Those in a group stand behind it, in creation order.
    [[nodiscard]] virtual std::vector<Item> items() const = 0;
    /// In creation order.
    [[nodiscard]] virtual std::vector<nyx::MaterialId> materials() const = 0;
    /// Empty for an unknown material.
    [[nodiscard]] virtual std::vector<Place> places(nyx::MaterialId material) const = 0;
    /// By which its places are bound, so that it can be undone; null for an unknown material.
    [[nodiscard]] virtual zsg::IMaterialEdit* materialEdit(nyx::MaterialId material) const = 0;
};

} // namespace workbench
