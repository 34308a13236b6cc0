#pragma once

#include "nyxrender/Export.h"
#include "nyxrender/nyxColor.h"

#include <memory>
#include <optional>

class nyxScene;
namespace nyx::painter {
class nyxBrush_node;
}

namespace nyx::embedded {

struct BrushImage;

/// What a graph of brush nodes says about painting, with every value as the renderer was last told
/// of it by nyxRT_api::update_brush_node. A plain copy: strokes of any thread may use it, whatever
/// becomes of the nodes.
struct NYXRENDER_EXPORT BrushSettings {
    /// A number that varies from dab to dab: less by up to `jitter` of it, 0 to 1.
    struct Jittered {
        float value = 1;
        float jitter = 0;
    };
    enum PenPressure { FlowPressure = 1, OpacityPressure = 2, SizePressure = 4 };
    enum ColorSource { SolidColor = 0, TextureColor = 1, ShaderColor = 2 };

    bool pixels = false; ///< lengths are those in texels, not those in scene units
    Jittered sizePixels; ///< the diameter of a dab
    Jittered sizeWorld;
    float spacingPixels = 1;
    float spacingWorld = 0.01f;
    float spacingPercent = 25;   ///< of the diameter
    bool adaptiveSpacing = true; ///< the percentage counts, not the lengths
    bool stamp = false;          ///< one dab per point of the stroke, none in between

    float hardness = 0.8f; ///< the part of the radius that is covered wholly, 0 to 1
    float opacity = 1;     ///< what the whole stroke covers at most, 0 to 1
    float alpha = 1;       ///< the same again
    Jittered flow;         ///< what each dab adds of what is still missing, 0 to 1
    int penPressure = 0;   ///< what the pen's pressure scales, bits of PenPressure

    float rotation = 0;       ///< of the image, in degrees, clockwise
    float rotationJitter = 0; ///< 1 turns by up to half a turn either way
    bool directional = false; ///< the image turns with the line

    nyxColor color;                            ///< linear, as all records
    int colorSource = SolidColor;              ///< a ColorSource
    std::shared_ptr<BrushImage const> stencil; ///< the shape of a dab in place of a disc
    bool stencilUseAlpha = false; ///< its alpha is the shape, else its brightness times alpha
    std::shared_ptr<BrushImage const> texture; ///< laid over the surface, texel by texel, repeated
};

/// The settings of a graph with this root; nothing when the root is no brush node of the scene. A
/// node that is missing leaves the defaults. Main thread.
[[nodiscard]] NYXRENDER_EXPORT std::optional<BrushSettings>
brushSettings(nyxScene& scene, nyx::painter::nyxBrush_node const* root);

} // namespace nyx::embedded
