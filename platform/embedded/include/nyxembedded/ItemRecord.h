#pragma once

#include "nyxrender/Ids.h"

#include <string>

namespace nyx::embedded {

enum class ItemKind { Group, Object, Light };

/// A group, an object or a light in the tree of the scene.
struct ItemRecord {
    nyx::GroupItemId id; ///< also its ObjectId, unless it is a group
    ItemKind kind = ItemKind::Object;
    std::string name;         ///< UTF-8
    nyx::GroupItemId parent;  ///< invalid: at the top
    nyx::MaterialId material; ///< of an object; invalid: none
    bool unlisted = false;    ///< a light that lists of light layers leave out

    [[nodiscard]] bool isLight() const { return kind == ItemKind::Light; }
};

} // namespace nyx::embedded
