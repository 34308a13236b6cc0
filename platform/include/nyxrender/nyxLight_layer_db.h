#pragma once

#include "nyxrender/Export.h"
#include "nyxrender/Flags.h"
#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"
#include "nyxrender/Unique_array.h"
#include "nyxrender/layerFlags.h"

#include <cstdint>
#include <memory>
#include <string>

class nyxScene;

/// The light layers of a scene, or a copy of them: named, flagged groups of lights, one bit of a
/// 32-bit mask each. A deleted layer keeps its id, name, flags and mask but is neither listed nor
/// counted; clearing its mark brings it back. A light is in at most one layer. Unknown layers are
/// ignored and answer with nothing, null texts count as empty. The virtual operations never call
/// each other. Main thread.
///
/// In the database of a scene only the scene's lights can be in a layer, each always is in one, and
/// its shader's mask follows every change.
class NYXRENDER_EXPORT nyxLight_layer_db {
public:
    /// Without any layer.
    nyxLight_layer_db();
    virtual ~nyxLight_layer_db();
    nyxLight_layer_db(nyxLight_layer_db const&) = delete;
    nyxLight_layer_db& operator=(nyxLight_layer_db const&) = delete;

    /// A new layer; an invalid `wanted` lets the database choose the id. Returns the invalid id
    /// when all 32 layers are taken or `wanted` is already in use.
    virtual nyx::LightLayerId create_layer(char const* name, nyx::LightLayerId wanted);
    /// Marks the layer with layerFlags::Deleted and moves its lights to layer 1, which itself
    /// cannot be deleted.
    virtual void delete_layer(nyx::LightLayerId id);
    /// The same, and the shaders of these lights in `scene` follow.
    virtual void delete_n_remap_layer(nyxScene& scene, nyx::LightLayerId id);
    /// Gives `target` the flags of `source`, but not the mark of a deleted layer, and a numbered
    /// form of its name. The lights stay where they are.
    virtual void clone_layer(nyx::LightLayerId target, nyx::LightLayerId source);
    /// Adding takes the lights out of their other layer; removing puts those that are in this layer
    /// into layer 1.
    virtual void add_lights(nyx::Span<nyx::ObjectId> lights, nyx::LightLayerId id);
    virtual void remove_lights(nyx::Span<nyx::ObjectId> lights, nyx::LightLayerId id);
    /// In place of all that it had.
    virtual void set_flags(nyx::LightLayerId id, nyx::Flags<layerFlags> flags);
    [[nodiscard]] virtual nyx::Flags<layerFlags> flags(nyx::LightLayerId id) const;
    [[nodiscard]] virtual std::uint32_t layer_bitmask(nyx::LightLayerId id) const;
    /// The invalid id when no layer has exactly this mask.
    [[nodiscard]] virtual nyx::LightLayerId layer_id_from_mask(std::uint32_t mask) const;
    /// The layers that the environment's light is in.
    [[nodiscard]] virtual std::uint32_t environment_light_mask() const;
    /// A name that no layer has, deleted ones included: the text itself, or a numbered form of it.
    [[nodiscard]] virtual std::string find_unique_name(char const* text) const;
    /// Null for an unknown layer. Valid until the layer is renamed.
    [[nodiscard]] virtual char const* get_layer_name(nyx::LightLayerId id) const;
    virtual void set_layer_name(nyx::LightLayerId id, char const* name);
    /// Becomes a copy of `source`; null is ignored.
    virtual void sync(nyxLight_layer_db const* source);
    /// Live layers, ascending.
    [[nodiscard]] virtual nyx::Unique_array<nyx::LightLayerId> get_layers() const;
    /// Lights of a layer, ascending.
    [[nodiscard]] virtual nyx::Unique_array<nyx::ObjectId> get_lights(nyx::LightLayerId id) const;
    [[nodiscard]] virtual bool contains(nyx::LightLayerId id, nyx::ObjectId light) const;
    [[nodiscard]] virtual unsigned get_layer_count() const;

private:
    friend class nyxScene;
    /// The one of a scene, made and owned by it.
    explicit nyxLight_layer_db(nyxScene& scene);

    struct Data;
    std::unique_ptr<Data> data_;
};

/// The database that belongs to a scene.
[[nodiscard]] NYXRENDER_EXPORT nyxLight_layer_db* nyx_light_layer_db_get(nyxScene const& scene);
