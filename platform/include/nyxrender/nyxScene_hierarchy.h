#pragma once

#include "nyxrender/Export.h"

#include <functional>

class nyxGroup_item;
class nyxScene;

/// The tree of a scene's objects.
class NYXRENDER_EXPORT nyxScene_hierarchy {
public:
    virtual ~nyxScene_hierarchy();
    /// Visits every object, depth first, parents before children; groups themselves are left out.
    virtual void walk(std::function<void(nyxGroup_item const&)> const& visit) const = 0;
};

/// The hierarchy of a scene, owned by it; null for a null scene.
[[nodiscard]] NYXRENDER_EXPORT nyxScene_hierarchy* nyx_scene_hierarchy_get(nyxScene* scene);
