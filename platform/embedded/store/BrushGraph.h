#pragma once

#include "store/BrushNode.h"

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace nyx::embedded {

class StringPool;

/// The brush nodes of a scene and the images that they use. Nodes live as long as the scene itself,
/// also when it gets other contents: brushes keep pointing to them. Main thread.
class BrushGraph {
public:
    explicit BrushGraph(StringPool& strings) : strings_(strings) {}

    BrushNode* add(std::unique_ptr<BrushNode> node);
    /// The node as one of this scene; null for any other.
    [[nodiscard]] BrushNode* find(nyx::painter::nyxBrush_node const* node) const;
    [[nodiscard]] std::size_t size() const { return nodes_.size(); }

    /// Puts a path into a file parameter and loads the image. The parameter takes every path, the
    /// empty one as null; a file that cannot be read is warned about and leaves the node without an
    /// image. One that has not changed since it was last read is not read again while a node uses
    /// it. What is no file parameter of this scene is warned about and left alone.
    void loadFile(BrushNode::Param& param, char const* path);

private:
    struct CachedImage {
        std::filesystem::file_time_type time;
        std::uintmax_t bytes = 0;
        std::weak_ptr<BrushImage const> image;
    };
    [[nodiscard]] std::shared_ptr<BrushImage const> image(std::string const& path);

    StringPool& strings_;
    std::vector<std::unique_ptr<BrushNode>> nodes_;
    std::unordered_map<nyx::painter::nyxBrush_node const*, BrushNode*> byAddress_;
    std::unordered_map<BrushNode::Param const*, BrushNode*> byFileParam_;
    std::unordered_map<std::string, CachedImage> images_;
};

} // namespace nyx::embedded
