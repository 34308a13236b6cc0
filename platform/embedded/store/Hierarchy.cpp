#include "store/Hierarchy.h"

#include "store/ItemTree.h"

#include "nyxembedded/Journal.h"

#include <vector>

nyxScene_hierarchy::~nyxScene_hierarchy() = default;

namespace nyx::embedded {

void Hierarchy::walk(std::function<void(nyxGroup_item const&)> const& visit) const {
    journal_.write("walk");
    // With a stack of its own: a file may nest groups deeper than calls may.
    std::vector<nyxGroup_item const*> waiting(items_.topItems().rbegin(), items_.topItems().rend());
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

} // namespace nyx::embedded
