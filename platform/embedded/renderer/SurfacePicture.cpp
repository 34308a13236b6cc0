#include "nyxembedded/SurfacePicture.h"

#include "store/Surfaces.h"

#include "nyxembedded/Painting.h"
#include "nyxembedded/PixelTile.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace nyx::embedded {

namespace {

/// Whether the layers are blended in the same way, whatever is painted on them.
bool isSameBlend(std::vector<CompositeLayer> const& a, std::vector<CompositeLayer> const& b) {
    return std::ranges::equal(a, b, [](CompositeLayer const& x, CompositeLayer const& y) {
        return x.mode == y.mode && x.background == y.background;
    });
}

} // namespace

class SurfacePicture::Impl {
public:
    explicit Impl(Surfaces& surfaces) : surfaces_(surfaces) {}

    Update update(nyx::SurfaceId id) {
        Surface const* const surface = surfaces_.find(id);
        Surface::Shown now = surface ? surface->shown() : Surface::Shown();
        Update update;
        update.resolution = now.resolution;
        update.isNew = now.resolution != last_.resolution || id != id_;
        isAllChanged_ = update.isNew || !isSameBlend(now.layers, last_.layers);
        for (TileArea const& area : changedAreas(now)) {
            update.parts.push_back({area.left * PixelTile::edge, area.top * PixelTile::edge,
                                    composite(now.layers, now.resolution, area)});
        }
        // Last, so that an update that fails is made up for by the next one.
        last_ = std::move(now);
        id_ = id;
        return update;
    }

private:
    [[nodiscard]] bool isChanged(Surface::Shown const& now, int column, int row) const {
        for (std::size_t i = 0; i < now.layers.size(); ++i) {
            if (!(now.layers[i].pixels.tile(column, row) ==
                  last_.layers[i].pixels.tile(column, row))) {
                return true;
            }
        }
        return false;
    }

    /// Rectangles that cover the changed tiles and no others: runs of a row, which grow downwards
    /// while the next row has the same run.
    [[nodiscard]] std::vector<TileArea> changedAreas(Surface::Shown const& now) const {
        int const across = (now.resolution + PixelTile::edge - 1) / PixelTile::edge;
        if (isAllChanged_) {
            return across == 0 ? std::vector<TileArea>()
                               : std::vector<TileArea>{{0, 0, across, across}};
        }
        std::vector<TileArea> areas;
        for (int row = 0; row < across; ++row) {
            for (int column = 0; column < across; ++column) {
                if (!isChanged(now, column, row)) {
                    continue;
                }
                int const left = column;
                while (column < across && isChanged(now, column, row)) {
                    ++column;
                }
                auto const above = std::ranges::find_if(areas, [&](TileArea const& area) {
                    return area.bottom == row && area.left == left && area.right == column;
                });
                if (above != areas.end()) {
                    ++above->bottom;
                } else {
                    areas.push_back({left, row, column, row + 1});
                }
            }
        }
        return areas;
    }

    Surfaces& surfaces_;
    nyx::SurfaceId id_;
    Surface::Shown last_;
    bool isAllChanged_ = false;
};

SurfacePicture::SurfacePicture(Painting const& painting)
    : impl_(std::make_unique<Impl>(painting.surfaces_)) {}

SurfacePicture::~SurfacePicture() = default;

SurfacePicture::Update SurfacePicture::update(nyx::SurfaceId id) { return impl_->update(id); }

} // namespace nyx::embedded
