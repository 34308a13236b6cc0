#pragma once

#include "zcore/ZColorExt.h"

/// A colour whose alpha is meant: a ZColorExt under another type. It adds no data of its own.
class ZCORE_EXPORT ZColorExtAlpha : public ZColorExt {
public:
    ZColorExtAlpha() = default;
    /// Opaque.
    explicit ZColorExtAlpha(nyxColor const& color) : ZColorExt(color) {}
    ZColorExtAlpha(float r, float g, float b, float a) : ZColorExt(r, g, b, a) {}
    explicit ZColorExtAlpha(ZColorExt const& color) : ZColorExt(color) {}
};
