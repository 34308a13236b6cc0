#include "store/Hierarchy.h"

#include "store/Scene.h"

#include <vector>

namespace nyx::embedded {

void Hierarchy::walk(std::function<void(nyxGroup_item const&)> const& visit) const {
    scene_.journal().write("walk");
    // With a stack of its own: a file may nest groups deeper than calls may.
    std::vector<nyxGroup_item const*> waiting(scene_.topItems().rbegin(), scene_.topItems().rend());
    while (!waiting.empty()) {
        nyxGroup_item const& item = *waiting.back();
        waiting.pop_back();
        nyx::Span<nyxGroup_item*> const children = item.children();
        for (std::size_t i = children.size(); i > 0; --i) {
            waiting.push_back(children[i - 1]);
        }
        if (item.object_id().isValid()) {
            visit(item);
        }
    }
}

bool LightShader::info(unsigned query) const { return query == 4100 && light_.unlisted; }

nyx::ObjectId GroupItem::object_id() const {
    return record.kind == ItemKind::Group ? nyx::ObjectId() : nyx::ObjectId(record.id.toUint());
}

nyxShader* GroupItem::shader() const { return is_light() ? &lightShader : nullptr; }

std::uint32_t GroupItem::light_layer_mask() const { return is_light() ? lightShader.mask : 0; }

} // namespace nyx::embedded
