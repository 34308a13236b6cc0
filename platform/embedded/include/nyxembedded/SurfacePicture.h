#pragma once

#include "nyxembedded/Image.h"
#include "nyxrender/Export.h"
#include "nyxrender/Ids.h"

#include <memory>
#include <vector>

namespace nyx::embedded {

class Painting;

/// The picture of a surface for somebody who shows it all the time: each update composites only
/// what is other than at the update before. It remembers by snapshots, so it finds out by itself
/// what strokes, undo, layers and other surfaces have changed. Any thread, one at a time; the
/// painting is borrowed.
class NYXRENDER_EXPORT SurfacePicture {
public:
    struct Part {
        int x = 0, y = 0; ///< of its upper left texel; a multiple of PixelTile::edge
        Image image;
    };
    struct Update {
        int resolution = 0; ///< 0 for an unknown surface
        bool isNew = false; ///< of another size or surface: what no part covers is transparent
        std::vector<Part> parts;
    };

    explicit SurfacePicture(Painting const& painting);
    ~SurfacePicture();
    SurfacePicture(SurfacePicture const&) = delete;
    SurfacePicture& operator=(SurfacePicture const&) = delete;

    /// What the parts cover is the picture now; the rest stayed as it was.
    [[nodiscard]] Update update(nyx::SurfaceId id);

private:
    class Impl;
    std::unique_ptr<Impl> impl_;
};

} // namespace nyx::embedded
