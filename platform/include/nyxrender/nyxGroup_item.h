#pragma once

#include "nyxrender/Export.h"
#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"

#include <cstdint>

class nyxScene;
class nyxShader;

/// A node of the scene's hierarchy: a group, an object or a light. Owned by the scene.
class NYXRENDER_EXPORT nyxGroup_item {
public:
    virtual ~nyxGroup_item();
    [[nodiscard]] virtual nyx::GroupItemId id() const = 0;
    [[nodiscard]] virtual nyx::ObjectId object_id() const = 0;
    [[nodiscard]] virtual bool is_light() const = 0;
    [[nodiscard]] virtual nyx::Span<nyxGroup_item*> children() const = 0;
    /// Null when the item has none.
    [[nodiscard]] virtual nyxShader* shader() const = 0;
    [[nodiscard]] virtual std::uint32_t light_layer_mask() const = 0;
};

/// The item of an id; null for a null scene or an unknown id.
[[nodiscard]] NYXRENDER_EXPORT nyxGroup_item* nyx_group_item_from_id(nyxScene* scene,
                                                                     nyx::GroupItemId id);
