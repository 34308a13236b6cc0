#pragma once

#include "nyxrender/Export.h"
#include "nyxrender/Ids.h"
#include "nyxrender/Unique_array.h"
#include "nyxrender/nyxLayerInfo.h"

#include <cstdint>

/// The renderer's side of one paint surface. Layers are numbered in render order: 0 is the bottom.
/// Each call is atomic; the main thread and the render thread may call at once. An index out of
/// range changes nothing.
class NYXRENDER_EXPORT nyxCustomSurface {
public:
    virtual ~nyxCustomSurface();
    [[nodiscard]] virtual nyx::SurfaceId id() const = 0;
    [[nodiscard]] virtual bool deleted() const = 0;
    virtual void set_deleted(bool deleted) = 0;
    [[nodiscard]] virtual nyx::Unique_array<nyxLayerInfo> layers() const = 0;
    [[nodiscard]] virtual std::uint32_t edit_layer() const = 0;
    virtual void set_edit_layer(std::uint32_t index) = 0;
    virtual void add_layer(std::uint32_t index, std::uint32_t layer_id) = 0;
    virtual void move_layer(std::uint32_t from, std::uint32_t to) = 0;
    virtual void set_layer_deleted(std::uint32_t index, bool deleted) = 0;
    virtual void set_layer_blend_mode(std::uint32_t index, nyx::ColorBlendMode mode) = 0;
    virtual void set_layer_visible(std::uint32_t index, bool visible) = 0;
    /// `name` is zero-terminated UTF-8; null takes the name away.
    virtual void set_layer_name(std::uint32_t index, char const* name) = 0;
    virtual void set_layer_background(std::uint32_t index, nyxColor_rgba const& color) = 0;
};
