#pragma once

#include "nyxembedded/ItemRecord.h"
#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"
#include "nyxrender/nyxGroup_item.h"
#include "nyxrender/nyxShader.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace nyx::embedded {

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
    [[nodiscard]] bool is_light() const override { return record.isLight(); }
    [[nodiscard]] nyx::Span<nyxGroup_item*> children() const override { return childItems; }
    [[nodiscard]] nyxShader* shader() const override;
    [[nodiscard]] std::uint32_t light_layer_mask() const override;

    ItemRecord record;
    std::vector<nyxGroup_item*> childItems;  ///< in creation order
    mutable LightShader lightShader{record}; ///< lights only
};

} // namespace nyx::embedded
