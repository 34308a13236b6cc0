#pragma once

#include "nyxrender/Export.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace nyx::embedded {

/// A square of texels, row after row. Red, green, blue and alpha stand in planes of their own,
/// eight bits each, and the colours are multiplied by alpha: none is above the texel's alpha.
struct PixelTile {
    static constexpr int edge = 64;
    static constexpr int texels = edge * edge;
    static constexpr int alpha = 3; ///< the plane of alpha

    alignas(16) std::uint8_t planes[4][texels] = {};
};

/// A handle of a tile that copies share until one of them writes. Null stands for a tile on which
/// everything is transparent. Handles of one tile may be used by several threads, one handle by one
/// thread at a time.
class NYXRENDER_EXPORT TileHandle {
public:
    TileHandle() noexcept = default;
    explicit TileHandle(PixelTile const& tile) : shared_(new Shared{tile}) {}
    TileHandle(TileHandle const& other) noexcept : shared_(other.shared_) {
        if (shared_) {
            shared_->holders.fetch_add(1, std::memory_order_relaxed);
        }
    }
    TileHandle(TileHandle&& other) noexcept : shared_(std::exchange(other.shared_, nullptr)) {}
    TileHandle& operator=(TileHandle other) noexcept {
        std::swap(shared_, other.shared_);
        return *this;
    }
    ~TileHandle() {
        if (shared_ && shared_->holders.fetch_sub(1, std::memory_order_acq_rel) == 1) {
            delete shared_;
        }
    }

    [[nodiscard]] PixelTile const* get() const { return shared_ ? &shared_->tile : nullptr; }
    explicit operator bool() const { return shared_ != nullptr; }
    /// The tile for writing: a new transparent one for null, a copy when it is shared.
    [[nodiscard]] PixelTile& writable();
    /// Whether both are the same tile in memory.
    friend bool operator==(TileHandle const& a, TileHandle const& b) {
        return a.shared_ == b.shared_;
    }

private:
    struct Shared {
        PixelTile tile;
        std::atomic<std::size_t> holders{1};
    };
    Shared* shared_ = nullptr;
};

} // namespace nyx::embedded
