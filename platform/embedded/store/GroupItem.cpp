#include "store/GroupItem.h"

nyxGroup_item::~nyxGroup_item() = default;

nyxShader::~nyxShader() = default;

namespace nyx::embedded {

bool LightShader::info(unsigned query) const { return query == 4100 && light_.unlisted; }

nyx::ObjectId GroupItem::object_id() const {
    return record.kind == ItemKind::Group ? nyx::ObjectId() : nyx::ObjectId(record.id.toUint());
}

nyxShader* GroupItem::shader() const { return is_light() ? &lightShader : nullptr; }

std::uint32_t GroupItem::light_layer_mask() const { return is_light() ? lightShader.mask : 0; }

} // namespace nyx::embedded
