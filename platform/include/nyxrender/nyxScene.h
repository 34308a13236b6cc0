#pragma once

#include "nyxrender/Export.h"

class nyxScene_api;

/// The scene that the renderer owns. Opaque: it is only passed to the renderer's functions.
class nyxScene;
/// A material of a scene. Opaque.
class nyxMaterial;

/// The editing interface of a scene, owned by the scene; null for a null scene.
NYXRENDER_EXPORT nyxScene_api* nyx_get_scene_api(nyxScene* scene);

/// Scene units per metre as the scene states it; 0 when it states none.
NYXRENDER_EXPORT double nyx_scene_unit_scale(nyxScene const& scene);
