#include "colors/colorwayPairs.h"

#include <algorithm>
#include <unordered_map>

namespace zsg {

std::optional<MultiColorPairs> distinctPairs(nyx::Span<MultiColorPair> pairs) {
    MultiColorPairs sorted(pairs.begin(), pairs.end());
    // Stable: of one multi-colour the first pair stays in front.
    std::ranges::stable_sort(sorted, {}, &MultiColorPair::multiColor);
    auto const repeated = std::ranges::unique(sorted, {}, &MultiColorPair::multiColor);
    if (repeated.empty()) {
        return std::nullopt;
    }
    sorted.erase(repeated.begin(), repeated.end());
    return sorted;
}

MultiColorPairs pairsWithout(nyx::Span<MultiColorPair> pairs, nyx::Span<nyx::ColorId> removed) {
    std::vector<nyx::ColorId> sorted(removed.begin(), removed.end());
    std::ranges::sort(sorted);
    MultiColorPairs kept(pairs.begin(), pairs.end());
    std::erase_if(kept, [&](MultiColorPair const& pair) {
        return std::ranges::binary_search(sorted, pair.multiColor);
    });
    return kept;
}

MultiColorPairs pairsWith(nyx::Span<MultiColorPair> pairs, nyx::Span<MultiColorPair> added,
                          int index, bool replace) {
    MultiColorPairs list(pairs.begin(), pairs.end());
    std::unordered_map<nyx::ColorId, std::size_t> places;
    for (std::size_t i = 0; i < list.size(); ++i) {
        places.emplace(list[i].multiColor, i);
    }
    std::size_t const old = list.size();
    for (MultiColorPair const& pair : added) {
        auto const [found, isNew] = places.emplace(pair.multiColor, list.size());
        if (isNew) {
            list.push_back(pair);
        } else if (replace) {
            list[found->second].subColor = pair.subColor;
        }
    }
    if (index >= 0 && static_cast<std::size_t>(index) < old) {
        std::rotate(list.begin() + index, list.begin() + static_cast<std::ptrdiff_t>(old),
                    list.end());
    }
    return list;
}

} // namespace zsg
