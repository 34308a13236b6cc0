#pragma once

#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"

#include <set>
#include <unordered_map>

namespace nyx::embedded {

/// Which records list a colour as a sub-colour. It follows every change of a list at once, so
/// nobody has to search the scene. Pure bookkeeping, over ids that need not exist.
class SubColorIndex {
public:
    /// A record lists these sub-colours. One that is listed twice is listed once.
    void list(nyx::ColorId record, nyx::Span<nyx::ColorId> subColors);
    void unlist(nyx::ColorId record, nyx::Span<nyx::ColorId> subColors);
    /// The record lists `after` instead of `before`. Costs a step per difference, and, when any
    /// sub-colour leaves, one per sub-colour.
    void relist(nyx::ColorId record, nyx::Span<nyx::ColorId> before, nyx::Span<nyx::ColorId> after);

    /// Valid until the next change.
    [[nodiscard]] std::set<nyx::ColorId> const& listing(nyx::ColorId sub) const;

private:
    std::unordered_map<nyx::ColorId, std::set<nyx::ColorId>> records_; ///< none empty
};

} // namespace nyx::embedded
