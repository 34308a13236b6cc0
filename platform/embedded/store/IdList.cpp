#include "store/IdList.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace nyx::embedded {

void IdList::insert(nyx::ColorId id) {
    if (waiting_.empty() && (ids_.empty() || ids_.back() < id)) {
        ids_.push_back(id);
    } else {
        change({id, true});
    }
}

void IdList::erase(nyx::ColorId id) {
    if (waiting_.empty() && ids_.back() == id) {
        ids_.pop_back();
    } else {
        change({id, false});
    }
}

nyx::Span<nyx::ColorId> IdList::ids() {
    if (!waiting_.empty()) {
        merge();
    }
    return ids_;
}

void IdList::change(Change change) {
    waiting_.push_back(change);
    if (waiting_.size() > ids_.size() + 1024) {
        merge();
    }
}

void IdList::merge() {
    // Of several changes of one id the last one holds.
    std::stable_sort(waiting_.begin(), waiting_.end(),
                     [](Change const& a, Change const& b) { return a.id < b.id; });
    std::vector<nyx::ColorId> merged;
    merged.reserve(ids_.size() + waiting_.size());
    auto old = ids_.begin();
    for (auto change = waiting_.begin(); change != waiting_.end(); ++change) {
        if (std::next(change) != waiting_.end() && std::next(change)->id == change->id) {
            continue;
        }
        auto const place = std::lower_bound(old, ids_.end(), change->id);
        merged.insert(merged.end(), old, place);
        old = place != ids_.end() && *place == change->id ? std::next(place) : place;
        if (change->in) {
            merged.push_back(change->id);
        }
    }
    merged.insert(merged.end(), old, ids_.end());
    ids_ = std::move(merged);
    waiting_.clear();
}

} // namespace nyx::embedded
