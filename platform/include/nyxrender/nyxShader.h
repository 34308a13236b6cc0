#pragma once

#include "nyxrender/Export.h"

#include <cstdint>

/// A shader of the scene, never owned here.
class NYXRENDER_EXPORT nyxShader {
public:
    virtual ~nyxShader();
    /// The bit of the light layer that a light's shader belongs to.
    [[nodiscard]] virtual std::uint32_t light_layer_mask() const = 0;
    /// Whether a property of the shader is set; 4100 is the only query that is asked.
    [[nodiscard]] virtual bool info(unsigned query) const = 0;
};
