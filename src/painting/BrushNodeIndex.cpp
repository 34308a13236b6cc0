#include "painting/BrushNodeIndex.h"

#include "nyxrender/nyxBrush_node.h"
#include "nyxrender/nyxScene_api.h"

#include <cstddef>
#include <unordered_set>

namespace zsg {

using nyx::painter::nyxBrush_node;
using nyx::painter::nyxBrush_param;

BrushNodeIndex::BrushNodeIndex(nyxBrush_node* root) {
    /// A node on the path, with how far its parameters are done. Kept by hand, so that a chain of
    /// any length does not use up the program's stack.
    struct Step {
        nyx::Span<nyxBrush_param*> params;
        std::size_t next;
        std::size_t prefixLength;
        nyxBrush_node* node;
    };
    std::vector<Step> path;
    std::unordered_set<nyxBrush_node*> onPath;
    std::string prefix;
    auto const enter = [&](nyxBrush_node* node, std::size_t prefixLength) {
        if (node && onPath.insert(node).second) {
            nodes_.push_back(node);
            path.push_back({node->params(), 0, prefixLength, node});
        }
    };
    enter(root, 0);
    while (!path.empty()) {
        Step& step = path.back();
        prefix.resize(step.prefixLength);
        if (step.next == step.params.size()) {
            onPath.erase(step.node);
            path.pop_back();
            continue;
        }
        nyxBrush_param* const record = step.params[step.next++];
        if (!record) {
            continue;
        }
        prefix += record->name ? record->name : "";
        if (record->type == nyxScene_api::TypeNode) {
            prefix += '_';
            enter(record->value.node, prefix.size());
        } else {
            records_.insert_or_assign(prefix, record);
        }
    }
}

nyxBrush_param* BrushNodeIndex::find(std::string_view key) const {
    auto const found = records_.find(key);
    return found == records_.end() ? nullptr : found->second;
}

} // namespace zsg
