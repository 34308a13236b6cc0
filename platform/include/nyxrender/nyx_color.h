#pragma once

#include "nyxrender/Export.h"
#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"
#include "nyxrender/Unique_array.h"
#include "nyxrender/nyxColor.h"

class nyxScene;

// Queries over a scene's colours and colorways. With a null scene they answer with nothing: empty
// arrays, 0, null; revisions stay untouched. Lists are in creation order. Names are zero-terminated
// UTF-8, compared byte for byte.

/// The two revision counters. Each rises when a record of its kind is created, removed, renamed or
/// flagged differently, so a list of ids is good as long as its counter stands still.
NYXRENDER_EXPORT void nyx_get_colordb_revision(nyxScene* scene, unsigned& color_revision,
                                               unsigned& colorway_revision);

/// The colours of a type, or all that have a name; the temporary colour is left out.
[[nodiscard]] NYXRENDER_EXPORT nyx::Unique_array<nyx::ColorId>
nyx_get_colors(nyxScene* scene, nyxColor_extended::ColorType type);
[[nodiscard]] NYXRENDER_EXPORT nyx::Unique_array<nyx::ColorId>
nyx_get_colors_named(nyxScene* scene);
[[nodiscard]] NYXRENDER_EXPORT nyx::Unique_array<nyx::ColorwayId>
nyx_get_colorways(nyxScene* scene);

/// Plain colours, multi-colours, colorways of a name.
[[nodiscard]] NYXRENDER_EXPORT nyx::Unique_array<nyx::ColorId>
nyx_color_from_name(nyxScene* scene, char const* name);
[[nodiscard]] NYXRENDER_EXPORT nyx::Unique_array<nyx::ColorId>
nyx_multi_color_from_name(nyxScene* scene, char const* name);
[[nodiscard]] NYXRENDER_EXPORT nyx::Unique_array<nyx::ColorwayId>
nyx_colorway_from_name(nyxScene* scene, char const* name);

/// How many places of the scene's materials use a colour: those bound to it, and those bound to a
/// multi-colour that lists it (each multi-colour counts once, and only one level). Colorways do not
/// count. 0 for an unknown colour.
[[nodiscard]] NYXRENDER_EXPORT unsigned nyx_color_reference_count(nyxScene* scene, nyx::ColorId id);
/// Makes the name of a colour unique among all colours, plain and multi, the temporary colour's not
/// counted; a unique or empty name stays.
NYXRENDER_EXPORT void nyx_color_set_unique_name(nyxScene* scene, nyx::ColorId id);
/// A name like `name` that no colour has, those of `ignored` not counted: `name` itself when it is
/// free or empty, else, after a trailing blank and number are split off, the first free of " 1", "
/// 2", … ("Red", "Red 1", "Red 2"). The caller releases it with nyx_free. Null when there is none.
[[nodiscard]] NYXRENDER_EXPORT char* nyx_color_find_unique_name(nyxScene* scene, char const* name,
                                                                nyx::Span<nyx::ColorId> ignored,
                                                                nyxColor_extended::ColorType type);
/// The materials that use a colour, ascending. Bit 0 of `how`: bound directly; bit 1: through a
/// multi-colour that lists it. `unassigned`: also materials that no object uses.
[[nodiscard]] NYXRENDER_EXPORT nyx::Unique_array<nyx::MaterialId>
nyx_get_materials_using_color(nyxScene* scene, nyx::ColorId id, unsigned how, bool unassigned);
