#include "colors/subColorEdits.h"

#include <algorithm>
#include <unordered_set>

namespace zsg {

namespace {

using ColorIdSet = std::unordered_set<nyx::ColorId>;

ColorIdSet setOf(nyx::Span<nyx::ColorId> ids) { return ColorIdSet(ids.begin(), ids.end()); }

ColorIdList distinct(nyx::Span<nyx::ColorId> ids) {
    ColorIdList list(ids.begin(), ids.end());
    ColorIdSet seen;
    std::erase_if(list, [&](nyx::ColorId id) { return !seen.insert(id).second; });
    return list;
}

ColorIdList inserted(nyx::Span<nyx::ColorId> subs, ColorIdList const& ids, int index,
                     bool mayTakeAll) {
    ColorIdSet const wanted = setOf(ids);
    ColorIdList list;
    list.reserve(subs.size() + ids.size());
    // The index is compared as it shrinks, not as it was given.
    int position = 0;
    for (nyx::ColorId const sub : subs) {
        if (!wanted.contains(sub)) {
            list.push_back(sub);
        } else if (position < index) {
            --index;
        }
        ++position;
    }
    if (list.empty() && !mayTakeAll) {
        list.assign(subs.begin(), subs.end());
    }
    bool const atEnd = index < 0 || static_cast<std::size_t>(index) >= list.size();
    list.insert(atEnd ? list.end() : list.begin() + index, ids.begin(), ids.end());
    return list;
}

} // namespace

ColorIdList withInserted(nyx::Span<nyx::ColorId> subs, nyx::Span<nyx::ColorId> added, int index) {
    return inserted(subs, distinct(added), index, false);
}

ColorIdList withMoved(nyx::Span<nyx::ColorId> subs, nyx::Span<nyx::ColorId> moved, int index) {
    ColorIdSet missing = setOf(moved);
    for (nyx::ColorId const sub : subs) {
        missing.erase(sub);
    }
    ColorIdList ids = distinct(moved);
    std::erase_if(ids, [&](nyx::ColorId id) { return missing.contains(id); });
    return inserted(subs, ids, index, true);
}

SubColorRemoval withoutSubColors(nyx::Span<nyx::ColorId> subs, nyx::Span<nyx::ColorId> unwanted,
                                 nyx::ColorId active) {
    ColorIdSet const unwantedSet = setOf(unwanted);
    SubColorRemoval result;
    result.active = active;
    result.left.reserve(subs.size());
    bool activeRemoved = false;
    std::size_t activePlace = 0;
    for (nyx::ColorId const sub : subs) {
        if (!unwantedSet.contains(sub)) {
            result.left.push_back(sub);
            continue;
        }
        if (sub == active && !activeRemoved) {
            activeRemoved = true;
            activePlace = result.left.size();
        }
        result.removed.push_back(sub);
    }
    if (activeRemoved) {
        result.active = result.left.empty()
                            ? nyx::ColorId()
                            : result.left[std::min(activePlace, result.left.size() - 1)];
    }
    return result;
}

std::optional<ColorIdList> replacedSubColor(nyx::Span<nyx::ColorId> subs, nyx::ColorId oldSub,
                                            nyx::ColorId newSub) {
    auto const* const found = std::ranges::find(subs, oldSub);
    if (found == subs.end() || !newSub.isValid() || std::ranges::find(subs, newSub) != subs.end()) {
        return std::nullopt;
    }
    ColorIdList list(subs.begin(), subs.end());
    list[static_cast<std::size_t>(found - subs.begin())] = newSub;
    return list;
}

} // namespace zsg
