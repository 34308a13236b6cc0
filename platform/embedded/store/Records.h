#pragma once

#include "nyxembedded/ColorRecord.h"
#include "nyxembedded/ColorwayRecord.h"
#include "nyxembedded/ItemRecord.h"
#include "nyxembedded/MaterialRecord.h"
#include "nyxrender/Ids.h"
#include "nyxrender/nyxGroup_item.h"
#include "nyxrender/nyxShader.h"

#include <cstdint>
#include <utility>
#include <vector>

// What the scene makes of the records of materials and items: what the renderer's clients are lent.

namespace nyx::embedded {

class Journal;

/// A light's shader: all that it knows is about light layers.
class LightShader final : public nyxShader {
public:
    explicit LightShader(ItemRecord const& light) : light_(light) {}

    [[nodiscard]] std::uint32_t light_layer_mask() const override { return mask; }
    [[nodiscard]] bool info(unsigned query) const override;

    std::uint32_t mask = 0; ///< bit n-1 for layer n

private:
    ItemRecord const& light_;
};

/// An item in the tree. Its address is stable as long as its scene keeps its contents.
class GroupItem final : public nyxGroup_item {
public:
    explicit GroupItem(ItemRecord itemRecord) : record(std::move(itemRecord)) {}
    GroupItem(GroupItem const&) = delete;
    GroupItem& operator=(GroupItem const&) = delete;

    [[nodiscard]] nyx::GroupItemId id() const override { return record.id; }
    [[nodiscard]] nyx::ObjectId object_id() const override;
    [[nodiscard]] bool is_light() const override { return record.kind == ItemKind::Light; }
    [[nodiscard]] nyx::Span<nyxGroup_item*> children() const override { return childItems; }
    [[nodiscard]] nyxShader* shader() const override;
    [[nodiscard]] std::uint32_t light_layer_mask() const override;

    ItemRecord record;
    std::vector<nyxGroup_item*> childItems;  ///< in creation order
    mutable LightShader lightShader{record}; ///< lights only
};

} // namespace nyx::embedded

/// A material as it is handed out. Everything but the places may be changed directly.
class nyxMaterial : public nyx::embedded::MaterialRecord {
public:
    nyx::embedded::Journal* journal = nullptr; ///< set when the material is handed out
};
