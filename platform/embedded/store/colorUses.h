#pragma once

#include "nyxrender/Ids.h"

#include <vector>

class nyxScene;

namespace nyx::embedded {

// Who uses a colour: questions that only the whole scene can answer. They cost a step per
// multi-colour that lists the colour, and one per material found.

/// How many places use the colour; nyx_color_reference_count() says which.
[[nodiscard]] unsigned referenceCount(nyxScene const& scene, nyx::ColorId color);
/// The materials that use the colour, ascending: bound to it directly, or to a multi-colour that
/// lists it; `unassigned` has those in that no object uses.
[[nodiscard]] std::vector<nyx::MaterialId> materialsUsing(nyxScene const& scene, nyx::ColorId color,
                                                          bool direct, bool throughMulti,
                                                          bool unassigned);

} // namespace nyx::embedded
