#include "lightlayers/IdSet.h"

namespace zsg {

bool IdSet::insert(std::uint32_t id) {
    std::uint32_t const number = id / idsPerPage;
    if (!lastPage_ || number != lastNumber_) {
        lastPage_ = &pages_[number];
        lastNumber_ = number;
    }
    std::uint64_t& word = (*lastPage_)[id % idsPerPage / 64];
    std::uint64_t const bit = std::uint64_t(1) << (id % 64);
    bool const isNew = (word & bit) == 0;
    word |= bit;
    return isNew;
}

} // namespace zsg
