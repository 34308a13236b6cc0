// Free functions over the scene as a whole.

#include "store/Scene.h"

#include "store/ItemTree.h"
#include "store/StringPool.h"

#include "nyxrender/nyxGroup_item.h"
#include "nyxrender/nyxScene.h"
#include "nyxrender/nyxScene_hierarchy.h"
#include "nyxrender/nyx_memory.h"

nyxScene_api* nyx_get_scene_api(nyxScene* scene) { return scene ? scene->api() : nullptr; }

double nyx_scene_unit_scale(nyxScene const& scene) {
    scene.journal().write("nyx_scene_unit_scale");
    return scene.unitScale();
}

char* nyx_string_dup(nyxScene& scene, char const* text) {
    return text ? scene.strings().duplicate(text) : nullptr;
}

nyxGroup_item* nyx_group_item_from_id(nyxScene* scene, nyx::GroupItemId id) {
    return scene ? scene->items().find(id) : nullptr;
}

nyxScene_hierarchy* nyx_scene_hierarchy_get(nyxScene* scene) {
    return scene ? scene->hierarchy() : nullptr;
}
