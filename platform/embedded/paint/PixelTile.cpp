#include "nyxembedded/PixelTile.h"

namespace nyx::embedded {

PixelTile& TileHandle::writable() {
    if (!shared_) {
        shared_ = new Shared{};
    } else if (shared_->holders.load(std::memory_order_acquire) != 1) {
        *this = TileHandle(shared_->tile);
    }
    return shared_->tile;
}

} // namespace nyx::embedded
