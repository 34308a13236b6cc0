#pragma once

#include "zsg/values/WeavePattern.h"

#include "nyxrender/WeavePattern.h"
#include "nyxrender/nyx_memory.h"

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <utility>

namespace zsg {

/// Owns the cells of a renderer grid.
class WeaveGrid {
public:
    using Cell = std::int32_t;

    /// True for sizes a pattern can have: at least one cell, at most as many as an int counts.
    [[nodiscard]] static constexpr bool isValidSize(std::int64_t numWarp,
                                                    std::int64_t numWeft) noexcept {
        constexpr std::int64_t most = std::numeric_limits<int>::max();
        return numWarp >= 1 && numWeft >= 1 && numWarp <= most && numWeft <= most / numWarp;
    }

    /// Wraps cells that are never freed.
    constexpr WeaveGrid(int numWarp, int numWeft, Cell* cells) noexcept
        : grid_{numWarp, numWeft, cells} {}
    /// Cells of unknown content; the size must be valid.
    WeaveGrid(int numWarp, int numWeft) : grid_{numWarp, numWeft, nullptr} {
        grid_.cells = static_cast<Cell*>(nyx_malloc_aligned(count() * sizeof(Cell), 32));
    }
    WeaveGrid(WeaveGrid const& other) : WeaveGrid(other.grid_.numWarp, other.grid_.numWeft) {
        std::copy_n(other.cells(), count(), cells());
    }
    WeaveGrid(WeaveGrid&& other) noexcept
        : grid_(std::exchange(other.grid_, nyx::WeavePattern{})) {}
    WeaveGrid& operator=(WeaveGrid other) noexcept {
        std::swap(grid_, other.grid_);
        return *this;
    }
    ~WeaveGrid() { nyx_free_aligned(grid_.cells); }

    [[nodiscard]] nyx::WeavePattern const& record() const noexcept { return grid_; }
    [[nodiscard]] std::size_t count() const noexcept {
        return static_cast<std::size_t>(grid_.numWarp) * static_cast<std::size_t>(grid_.numWeft);
    }
    [[nodiscard]] Cell* cells() noexcept { return grid_.cells; }
    [[nodiscard]] Cell const* cells() const noexcept { return grid_.cells; }
    [[nodiscard]] std::size_t index(int x, int y) const noexcept {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(grid_.numWarp) +
               static_cast<std::size_t>(x);
    }

private:
    nyx::WeavePattern grid_;
};

/// What a pattern says about its yarns, indexed by WeavePattern::YarnType.
struct WeaveYarns {
    float width[2] = {0.4f, 0.9f};
    float tension[2] = {1.0f, 1.0f};
    float modulus[2] = {1.0f, 1.0f};
    WeavePattern::YarnKind kind[2] = {WeavePattern::Round, WeavePattern::Round};
};

/// The record that equal handles share.
struct WeavePattern::Data {
    constexpr Data(int numWarp, int numWeft, WeaveGrid::Cell* immortal) noexcept
        : grid(numWarp, numWeft, immortal) {}
    Data(WeaveGrid g, WeaveYarns const& y) noexcept : grid(std::move(g)), yarns(y) {}

    [[nodiscard]] bool isShared() const noexcept {
        return count.load(std::memory_order_acquire) != 1;
    }
    Data* share() noexcept {
        count.fetch_add(1, std::memory_order_relaxed);
        return this;
    }
    static void release(Data* data) noexcept {
        if (data->count.fetch_sub(1, std::memory_order_acq_rel) == 1) {
            delete data;
        }
    }
    /// Gives a handle another grid; it is private to the handle afterwards.
    static void replaceGrid(WeavePattern& pattern, WeaveGrid grid);
    /// Gives a handle a copy of its grid.
    static void unshare(WeavePattern& pattern);
    /// Gives a handle a copy of its grid, and sets a cell of that.
    static void setUnshared(WeavePattern& pattern, int x, int y, YarnType type);
    /// The record of default patterns.
    static Data& standard() noexcept;

    std::atomic<std::uint32_t> count{1};
    WeaveGrid grid;
    WeaveYarns yarns;
};

} // namespace zsg
