#pragma once

#include <cstdint>

/// What kind of edit an undo command is. Several commands share a number on purpose.
enum class ZCommandId : std::int32_t {
    None = 0,
    Macro = 1,
    EditMaterial = 100,
    AddDeletePaintLayer = 167,
    PaintLayerBlend = 169,
    PaintLayerVisibility = 170,
    PaintLayerName = 171,
    PaintLayerBackgroundOrMove = 172,
    CreateColorway = 174,
    EditColorway = 175,
    ActivateColorway = 176,
    EditColor = 177, ///< also the multi-colour toggle
    CreateLightLayer = 184,
    EditLightLayer = 185,
};
