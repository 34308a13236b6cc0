#include "colors/colorwayPairs.h"

#include <algorithm>
#include <numeric>

namespace zsg {

std::optional<ColorwayPairs> repairedPairs(nyx::Span<nyx::ColorId> multiColors,
                                           nyx::Span<nyx::ColorId> activeSubs) {
    std::size_t const size = std::min(multiColors.size(), activeSubs.size());

    // Positions by multi-colour; among those of one multi-colour the first position comes first.
    std::vector<std::size_t> order(size);
    std::iota(order.begin(), order.end(), std::size_t{0});
    auto const multiAt = [&](std::size_t position) { return multiColors[position]; };
    std::ranges::stable_sort(order, {}, multiAt);
    auto const repeated =
        std::unique(order.begin(), order.end(),
                    [&](std::size_t a, std::size_t b) { return multiAt(a) == multiAt(b); });

    if (repeated != order.end()) {
        order.erase(repeated, order.end());
    } else if (multiColors.size() == activeSubs.size()) {
        return std::nullopt;
    } else {
        std::ranges::sort(order);
    }
    ColorwayPairs pairs;
    for (std::size_t const position : order) {
        pairs.multiColors.push_back(multiColors[position]);
        pairs.activeSubs.push_back(activeSubs[position]);
    }
    return pairs;
}

ColorwayPairs pairsWithout(nyx::Span<nyx::ColorId> multiColors, nyx::Span<nyx::ColorId> activeSubs,
                           nyx::Span<nyx::ColorId> removed) {
    std::vector<nyx::ColorId> sorted(removed.begin(), removed.end());
    std::ranges::sort(sorted);
    ColorwayPairs pairs;
    for (std::size_t i = 0; i < multiColors.size(); ++i) {
        if (!std::ranges::binary_search(sorted, multiColors[i])) {
            pairs.multiColors.push_back(multiColors[i]);
            pairs.activeSubs.push_back(activeSubs[i]);
        }
    }
    return pairs;
}

} // namespace zsg
