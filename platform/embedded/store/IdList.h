#pragma once

#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"

#include <cstddef>
#include <vector>

namespace nyx::embedded {

/// An ascending list of ids that is ready to be copied out. Changes at its end are made at once,
/// others wait and are merged in together, so a change costs the same (amortised) however long the
/// list is.
class IdList {
public:
    /// The id must not be in the list.
    void insert(nyx::ColorId id);
    /// The id must be in the list.
    void erase(nyx::ColorId id);
    /// Valid until the next change.
    [[nodiscard]] nyx::Span<nyx::ColorId> ids();

private:
    struct Change {
        nyx::ColorId id;
        bool in;
    };
    void change(Change change);
    void merge();

    std::vector<nyx::ColorId> ids_;
    std::vector<Change> waiting_;
};

} // namespace nyx::embedded
