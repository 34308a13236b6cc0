#pragma once

#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"

#include <optional>
#include <vector>

namespace zsg {

// Edits of a multi-colour's list of sub-colours, as pure functions of lists.

using ColorIdList = std::vector<nyx::ColorId>;

/// The list with `added` before position `index` (counted before the edit; negative or too large:
/// at the end), in their order. Those listed already are moved; but when every listed one is added,
/// all stay and are listed a second time. Repeated ids of `added` count once; the invalid id is one
/// like any other.
[[nodiscard]] ColorIdList withInserted(nyx::Span<nyx::ColorId> subs, nyx::Span<nyx::ColorId> added,
                                       int index);

/// The list with those of `moved` that it holds before position `index`, in the order of `moved`.
/// It holds the same sub-colours as before.
[[nodiscard]] ColorIdList withMoved(nyx::Span<nyx::ColorId> subs, nyx::Span<nyx::ColorId> moved,
                                    int index);

struct SubColorRemoval {
    ColorIdList left;
    ColorIdList removed; ///< those that were really listed, in the list's order
    /// What is active afterwards: `active` itself when it stays, else the sub-colour that stands in
    /// its place now, the last one when it was the last, the invalid id when none is left.
    nyx::ColorId active;
};

[[nodiscard]] SubColorRemoval withoutSubColors(nyx::Span<nyx::ColorId> subs,
                                               nyx::Span<nyx::ColorId> unwanted,
                                               nyx::ColorId active);

/// The list with `newSub` where `oldSub` first stands. Nothing unless `oldSub` is listed and
/// `newSub` is a valid id that is not.
[[nodiscard]] std::optional<ColorIdList> replacedSubColor(nyx::Span<nyx::ColorId> subs,
                                                          nyx::ColorId oldSub, nyx::ColorId newSub);

} // namespace zsg
