#pragma once

#include "zsg/values/Enumerable.h"

#include "zcore/ZColorExt.h"

#include <QString>

namespace zsg {

/// What a brush holds of its settings itself. Parameters point at these, so they never move.
struct BrushFields {
    ZColorExt color;
    Enumerable spaceUnit;
    Enumerable colorSelection;
    Enumerable paintMode;
    QString textureFilePath;
    QString stencilFilePath;
    float hardnessPercent = 60.0f;
    float opacityPercent = 100.0f;
    float flowPercent = 100.0f;
    bool flowPenPressure = false;
    bool sizePenPressure = false;
    bool opacityPenPressure = false;
};

} // namespace zsg
