#include "store/SubColorIndex.h"

#include <algorithm>
#include <unordered_set>

namespace nyx::embedded {

void SubColorIndex::list(nyx::ColorId record, nyx::Span<nyx::ColorId> subColors) {
    for (nyx::ColorId const sub : subColors) {
        records_[sub].insert(record);
    }
}

void SubColorIndex::unlist(nyx::ColorId record, nyx::Span<nyx::ColorId> subColors) {
    for (nyx::ColorId const sub : subColors) {
        auto const listing = records_.find(sub);
        if (listing == records_.end()) {
            continue;
        }
        listing->second.erase(record);
        if (listing->second.empty()) {
            records_.erase(listing);
        }
    }
}

void SubColorIndex::relist(nyx::ColorId record, nyx::Span<nyx::ColorId> before,
                           nyx::Span<nyx::ColorId> after) {
    std::size_t const shorter = std::min(before.size(), after.size());
    std::size_t front = 0;
    while (front < shorter && before[front] == after[front]) {
        ++front;
    }
    std::size_t back = 0;
    while (back < shorter - front &&
           before[before.size() - 1 - back] == after[after.size() - 1 - back]) {
        ++back;
    }
    list(record, {after.data() + front, after.size() - front - back});
    nyx::Span<nyx::ColorId> const left{before.data() + front, before.size() - front - back};
    if (left.empty()) {
        return;
    }
    std::unordered_set<nyx::ColorId> const staying(after.begin(), after.end());
    for (nyx::ColorId const& sub : left) {
        if (!staying.contains(sub)) {
            unlist(record, {&sub, 1});
        }
    }
}

std::set<nyx::ColorId> const& SubColorIndex::listing(nyx::ColorId sub) const {
    static std::set<nyx::ColorId> const none;
    auto const listing = records_.find(sub);
    return listing == records_.end() ? none : listing->second;
}

} // namespace nyx::embedded
