#pragma once

#include "nyxrender/Export.h"
#include "nyxrender/Ids.h"
#include "nyxrender/nyxColor.h"

#include <cstdint>

namespace nyx::painter {
class nyxBrush_node;
struct nyxBrush_param;
} // namespace nyx::painter

/// What nyxScene_api::end_color reports of a new colour. The flags word is the record's own: what
/// is written there holds.
struct nyxColor_record {
    nyx::ColorId id;
    std::uint32_t flags = 0;
};

/// Makes new things in a scene, between a begin and an end call. Main thread; colours and colorways
/// are made under the API's lock, brush nodes without it.
class NYXRENDER_EXPORT nyxScene_api {
public:
    /// Type codes of set_param and of brush node parameters.
    static constexpr int TypeColor = 1;
    static constexpr int TypeFloat = 3;
    static constexpr int TypeText = 10;
    static constexpr int TypeNode = 24;

    virtual ~nyxScene_api();

    virtual void begin_color() = 0;
    /// The new colour, or null when none could be made. Valid until the next begin call.
    virtual nyxColor_record* end_color() = 0;
    virtual void begin_colorway() = 0;
    /// The new colorway's id, or null when none could be made. Valid until the next begin call.
    virtual nyx::ColorwayId const* end_colorway() = 0;

    /// Sets a parameter of the thing that is being made; names that it lacks are ignored.
    virtual void set_param(char const* name, int type, char const* text) = 0;
    virtual void set_param(char const* name, int type, float value) = 0;
    virtual void set_param(char const* name, int type, nyxColor const& value) = 0;
    virtual void set_param(char const* name, int type, nyx::painter::nyxBrush_node* node) = 0;

    /// Starts a brush node of a kind; `extra` is -1 for a node without a place in the interface.
    virtual void begin_brush_node(char const* kind, int extra) = 0;
    /// The new node, owned by the scene, or null for an unknown kind.
    virtual nyx::painter::nyxBrush_node* end_brush_node() = 0;
    /// Loads the image at a UTF-8 path into a file parameter of a brush node.
    virtual void load_brush_file(nyx::painter::nyxBrush_param& parameter, char const* path) = 0;
};
