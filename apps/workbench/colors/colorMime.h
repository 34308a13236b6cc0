#pragma once

#include "nyxrender/Ids.h"
#include "zcore/ZColorExt.h"

#include <memory>
#include <vector>

class QMimeData;

namespace workbench {

class Scene;

// Colours on the clipboard and under the pointer. Three forms at once: our own, with whole floats
// and the ids of the scene that they come from; application/x-color, for one colour; and lines of
// "Walnut #8a6a44".

[[nodiscard]] char const* colorMimeType();

/// `multi` is the multi-colour that they are dragged out of, if any.
[[nodiscard]] std::unique_ptr<QMimeData>
makeColorMime(Scene const& scene, std::vector<nyx::ColorId> const& ids, nyx::ColorId multi = {});

/// What a clipboard holds of colours.
struct ColorMime {
    std::vector<ZColorExt> values; ///< without ids; multi-colours with their elements
    /// The same colours in `scene`, where they come from it and still exist; else empty.
    std::vector<nyx::ColorId> ids;
    nyx::ColorId multi;
};

/// Nothing in it when the data holds no colours that can be read; what is too large or malformed is
/// left out.
[[nodiscard]] ColorMime readColorMime(Scene const& scene, QMimeData const& data);

} // namespace workbench
