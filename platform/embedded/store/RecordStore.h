#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <utility>
#include <vector>

namespace nyx::embedded {

/// Records under ids that ascend from 1 and are never used again. Addresses are stable until a
/// record is erased; order is that of the ids, which is that of creation. Finding and adding cost
/// the same whatever the number of records; each gap that a given id leaves adds one step to a
/// binary search.
template <class Record>
class RecordStore {
public:
    [[nodiscard]] Record const* find(std::uint32_t id) const {
        auto run = std::upper_bound(
            runs_.begin(), runs_.end(), id,
            [](std::uint32_t wanted, Run const& candidate) { return wanted < candidate.firstId; });
        if (run == runs_.begin()) {
            return nullptr;
        }
        std::size_t const end = run == runs_.end() ? slots_.size() : run->firstSlot;
        --run;
        std::size_t const slot = run->firstSlot + (id - run->firstId);
        return slot < end && slots_[slot] ? &*slots_[slot] : nullptr;
    }
    [[nodiscard]] Record* find(std::uint32_t id) {
        return const_cast<Record*>(std::as_const(*this).find(id));
    }

    /// The id that the next record will have when it does not ask for one.
    [[nodiscard]] std::uint32_t nextId() const { return nextId_; }
    /// `wanted`, or nextId() for the invalid id.
    [[nodiscard]] std::uint32_t idFor(std::uint32_t wanted) const {
        return wanted == invalidId ? nextId_ : wanted;
    }
    /// Keeps ids below `id` from being given out.
    void skipIdsBelow(std::uint32_t id) { nextId_ = std::max(nextId_, id); }

    /// Null when `id` is below nextId(), or is the invalid id.
    template <class... Arguments>
    Record* emplace(std::uint32_t id, Arguments&&... arguments) {
        if (id < nextId_ || id == invalidId) {
            return nullptr;
        }
        slots_.emplace_back(std::in_place, std::forward<Arguments>(arguments)...);
        std::size_t const slot = slots_.size() - 1;
        if (runs_.empty() || id - runs_.back().firstId != slot - runs_.back().firstSlot) {
            runs_.push_back({id, slot});
        }
        nextId_ = id + 1;
        ++size_;
        return &*slots_.back();
    }

    bool erase(std::uint32_t id) {
        Record const* const record = find(id);
        if (!record) {
            return false;
        }
        auto const run = std::prev(std::upper_bound(
            runs_.begin(), runs_.end(), id,
            [](std::uint32_t wanted, Run const& candidate) { return wanted < candidate.firstId; }));
        slots_[run->firstSlot + (id - run->firstId)].reset();
        --size_;
        return true;
    }

    template <class Visit>
    void forEach(Visit&& visit) const {
        for (std::optional<Record> const& slot : slots_) {
            if (slot) {
                visit(*slot);
            }
        }
    }
    template <class Visit>
    void forEach(Visit&& visit) {
        for (std::optional<Record>& slot : slots_) {
            if (slot) {
                visit(*slot);
            }
        }
    }

    [[nodiscard]] std::size_t size() const { return size_; }

private:
    static constexpr std::uint32_t invalidId = 0xFFFFFFFFu;

    /// Consecutive ids in consecutive slots, up to the next run.
    struct Run {
        std::uint32_t firstId;
        std::size_t firstSlot;
    };

    std::deque<std::optional<Record>> slots_;
    std::vector<Run> runs_;
    std::uint32_t nextId_ = 1;
    std::size_t size_ = 0;
};

} // namespace nyx::embedded
