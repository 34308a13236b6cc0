#pragma once

#include <array>
#include <cstdint>
#include <unordered_map>

namespace zsg {

/// A set of 32-bit ids that is only ever added to. The renderer numbers its objects one after the
/// other, so ids share pages of bits: adding the neighbours of an id costs a few instructions.
class IdSet {
public:
    IdSet() = default;
    IdSet(IdSet const&) = delete;
    IdSet& operator=(IdSet const&) = delete;

    /// True when it was not in the set before.
    bool insert(std::uint32_t id);

private:
    using Page = std::array<std::uint64_t, 8>;
    static constexpr std::uint32_t idsPerPage = 512;

    std::unordered_map<std::uint32_t, Page> pages_;
    Page* lastPage_ = nullptr; ///< pages do not move
    std::uint32_t lastNumber_ = 0;
};

} // namespace zsg
