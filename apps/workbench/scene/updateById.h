#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <type_traits>
#include <utility>
#include <vector>

namespace workbench {

/// Gives a model other rows or columns. What is in both lists stays what it is, wherever it stands
/// and whatever else has become of it, and with it every selection; only what has come to stand
/// before a thing that it stood behind goes and comes again. Ids are unique. `announce` has
/// removing(first, last), removed(), inserting(first, last), inserted().
template <class Item, class IdOf, class Announce>
void updateById(std::vector<Item>& items, std::vector<Item> next, IdOf idOf, Announce&& announce) {
    using Id = std::decay_t<std::invoke_result_t<IdOf, Item const&>>;
    std::map<Id, std::size_t> places;
    for (Item const& item : next) {
        places.emplace(std::invoke(idOf, item), places.size());
    }
    std::vector<bool> stays;
    std::size_t reached = 0;
    for (Item const& item : items) {
        auto const place = places.find(std::invoke(idOf, item));
        stays.push_back(place != places.end() && place->second >= reached);
        reached = stays.back() ? place->second + 1 : reached;
    }
    auto const at = [](std::vector<Item>& list, std::size_t i) {
        return list.begin() + static_cast<std::ptrdiff_t>(i);
    };
    for (std::size_t end = items.size(); end > 0; --end) {
        std::size_t first = end;
        while (first > 0 && !stays[first - 1]) {
            --first;
        }
        if (first < end) {
            announce.removing(static_cast<int>(first), static_cast<int>(end) - 1);
            items.erase(at(items, first), at(items, end));
            announce.removed();
            end = first + 1;
        }
    }
    for (std::size_t i = 0; i < next.size(); ++i) {
        std::size_t end = i;
        while (end < next.size() &&
               (i == items.size() || std::invoke(idOf, next[end]) != std::invoke(idOf, items[i]))) {
            ++end;
        }
        if (i < end) {
            announce.inserting(static_cast<int>(i), static_cast<int>(end) - 1);
            items.insert(at(items, i), at(next, i), at(next, end));
            announce.inserted();
            i = end - 1;
        } else {
            items[i] = std::move(next[i]);
        }
    }
}

} // namespace workbench
