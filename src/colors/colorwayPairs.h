#pragma once

#include "zsg/colors/MultiColorPair.h"

#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"

#include <optional>
#include <vector>

namespace zsg {

// Edits of a colorway's pairs, as pure functions of lists.

/// When a multi-colour is listed again, the first pair of each in ascending order of multi-colours;
/// else nothing.
[[nodiscard]] std::optional<std::vector<MultiColorPair>>
distinctPairs(nyx::Span<MultiColorPair> pairs);

/// The pairs, in order, whose multi-colour is not among `removed`.
[[nodiscard]] std::vector<MultiColorPair> pairsWithout(nyx::Span<MultiColorPair> pairs,
                                                       nyx::Span<nyx::ColorId> removed);

/// The pairs with those of `added` whose multi-colour is new before position `index` (negative or
/// past the end: at the end), in their order. A multi-colour that is there already keeps its
/// place, and takes the added sub-colour only with `replace`.
[[nodiscard]] std::vector<MultiColorPair> pairsWith(nyx::Span<MultiColorPair> pairs,
                                                    nyx::Span<MultiColorPair> added, int index,
                                                    bool replace);

} // namespace zsg
