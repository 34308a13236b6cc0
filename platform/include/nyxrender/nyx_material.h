#pragma once

#include "nyxrender/Export.h"
#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"

#include <functional>

class nyxScene;
class nyxMaterial;

// What a material says about itself. Texts are zero-terminated UTF-8 and valid until the material
// changes.

/// The material of an id, owned by the scene; null for a null scene or an unknown id.
[[nodiscard]] NYXRENDER_EXPORT nyxMaterial* nyx_material_from_id(nyxScene* scene,
                                                                 nyx::MaterialId id);
[[nodiscard]] NYXRENDER_EXPORT char const* nyx_material_name(nyxMaterial const& material);

/// Calls `visit` for every CMF value, in ascending order of keys.
NYXRENDER_EXPORT void
nyx_material_cmf_values(nyxMaterial const& material,
                        std::function<void(char const* key, char const* value)> const& visit);
NYXRENDER_EXPORT void nyx_material_clear_cmf_values(nyxMaterial& material);
NYXRENDER_EXPORT void nyx_material_set_cmf_value(nyxMaterial& material, char const* key,
                                                 char const* value);

/// The metadata as JSON text; empty when there is none.
[[nodiscard]] NYXRENDER_EXPORT char const* nyx_material_metadata(nyxMaterial const& material);
NYXRENDER_EXPORT void nyx_material_set_metadata(nyxMaterial& material, char const* json);

/// Identifiers of items that belong to the material; opaque here.
[[nodiscard]] NYXRENDER_EXPORT nyx::Span<unsigned> nyx_material_items(nyxMaterial const& material);
