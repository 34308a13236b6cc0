#include "colors/colorwayPairs.h"

#include <algorithm>
#include <unordered_map>

namespace zsg {

std::optional<std::vector<MultiColorPair>> distinctPairs(nyx::Span<MultiColorPair> pairs) {
    std::vector<MultiColorPair> sorted(pairs.begin(), pairs.end());
    // Stable: of one multi-colour the first pair stays in front.
    std::ranges::stable_sort(sorted, {}, &MultiColorPair::multiColor);
    auto const repeated = std::unique(sorted.begin(), sorted.end(),
                                      [](MultiColorPair const& a, MultiColorPair const& b) {
                                          return a.multiColor == b.multiColor;
                                      });
    if (repeated == sorted.end()) {
        return std::nullopt;
    }
    sorted.erase(repeated, sorted.end());
    return sorted;
}

std::vector<MultiColorPair> pairsWithout(nyx::Span<MultiColorPair> pairs,
                                         nyx::Span<nyx::ColorId> removed) {
    std::vector<nyx::ColorId> sorted(removed.begin(), removed.end());
    std::ranges::sort(sorted);
    std::vector<MultiColorPair> kept(pairs.begin(), pairs.end());
    std::erase_if(kept, [&](MultiColorPair const& pair) {
        return std::ranges::binary_search(sorted, pair.multiColor);
    });
    return kept;
}

std::vector<MultiColorPair> pairsWith(nyx::Span<MultiColorPair> pairs,
                                      nyx::Span<MultiColorPair> added, int index, bool replace) {
    // Of what is added, for it is usually one pair, and the colorway may hold many.
    std::unordered_map<nyx::ColorId, std::size_t> places;
    std::vector<MultiColorPair> news;
    for (MultiColorPair const& pair : added) {
        auto const [place, isNew] = places.emplace(pair.multiColor, news.size());
        if (isNew) {
            news.push_back(pair);
        } else if (replace) {
            news[place->second].subColor = pair.subColor;
        }
    }
    std::vector<MultiColorPair> list(pairs.begin(), pairs.end());
    for (MultiColorPair& pair : list) {
        auto const place = places.find(pair.multiColor);
        if (place == places.end()) {
            continue;
        }
        if (replace) {
            pair.subColor = news[place->second].subColor;
        }
        places.erase(place);
    }
    std::erase_if(news,
                  [&](MultiColorPair const& pair) { return !places.contains(pair.multiColor); });
    bool const atEnd = index < 0 || static_cast<std::size_t>(index) > list.size();
    list.insert(atEnd ? list.end() : list.begin() + index, news.begin(), news.end());
    return list;
}

} // namespace zsg
