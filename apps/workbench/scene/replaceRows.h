#pragma once

#include <QAbstractItemModel>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <vector>

namespace workbench {

/// Gives a model other rows with as few announcements as an ordinary change needs: what both lists
/// begin and end with stays, and with it every selection in it. `announce` has
/// removing(first, last), removed(), inserting(first, last), inserted().
template <class Item, class Announce>
void replaceRows(std::vector<Item>& rows, std::vector<Item> const& next, Announce&& announce) {
    auto const begin = std::ranges::mismatch(rows, next);
    auto const head = begin.in1 - rows.begin();
    auto const most = std::min(rows.end() - begin.in1, next.end() - begin.in2);
    std::ptrdiff_t tail = 0;
    while (tail < most && *(rows.end() - tail - 1) == *(next.end() - tail - 1)) {
        ++tail;
    }
    auto const oldEnd = rows.end() - tail;
    auto const newEnd = next.end() - tail;
    if (oldEnd - rows.begin() > head) {
        announce.removing(static_cast<int>(head), static_cast<int>(oldEnd - rows.begin()) - 1);
        rows.erase(rows.begin() + head, oldEnd);
        announce.removed();
    }
    if (newEnd - next.begin() > head) {
        announce.inserting(static_cast<int>(head), static_cast<int>(newEnd - next.begin()) - 1);
        rows.insert(rows.begin() + head, next.begin() + head, newEnd);
        announce.inserted();
    }
}

} // namespace workbench
