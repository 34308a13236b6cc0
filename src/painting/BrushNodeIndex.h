#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace nyx::painter {
class nyxBrush_node;
struct nyxBrush_param;
} // namespace nyx::painter

namespace zsg {

/// The parameters of a graph of brush nodes under path keys: the names of the links that lead from
/// the root, then the parameter's own, joined by "_". The root's link "basic" and that node's link
/// "size_px" make "basic_size_px_value" of the value there.
///
/// A node that is linked to twice is visited twice and has keys for both paths. A link to nothing,
/// or back to a node that the path came through, ends the walk there. Of two records with the same
/// key the later one counts. Nodes and records stay the scene's.
class BrushNodeIndex {
public:
    /// Walks the graph; a null root gives an empty index.
    explicit BrushNodeIndex(nyx::painter::nyxBrush_node* root);

    /// Every node, in visiting order: a node before those that it links to.
    [[nodiscard]] std::vector<nyx::painter::nyxBrush_node*> const& nodes() const { return nodes_; }
    /// The record of a key; null when there is none.
    [[nodiscard]] nyx::painter::nyxBrush_param* find(std::string_view key) const;

private:
    /// Looks keys up without making a text of them.
    struct KeyHash : std::hash<std::string_view> {
        using is_transparent = void;
    };

    std::vector<nyx::painter::nyxBrush_node*> nodes_;
    std::unordered_map<std::string, nyx::painter::nyxBrush_param*, KeyHash, std::equal_to<>>
        records_;
};

} // namespace zsg
