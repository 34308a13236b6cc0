#include "store/BrushGraph.h"

#include "store/StringPool.h"

#include "nyxrender/nyx_warning.h"

#include <system_error>

namespace nyx::embedded {

BrushNode* BrushGraph::add(std::unique_ptr<BrushNode> node) {
    BrushNode* const made = nodes_.emplace_back(std::move(node)).get();
    byAddress_.emplace(made, made);
    for (BrushNode::Param* const param : made->params()) {
        if (param->type == BrushFile) {
            byFileParam_.emplace(param, made);
        }
    }
    return made;
}

BrushNode* BrushGraph::find(nyx::painter::nyxBrush_node const* node) const {
    auto const found = byAddress_.find(node);
    return found == byAddress_.end() ? nullptr : found->second;
}

void BrushGraph::loadFile(BrushNode::Param& param, char const* path) {
    auto const node = byFileParam_.find(&param);
    if (node == byFileParam_.end()) {
        nyx_warning("nyxrender: load_brush_file() of what is no file parameter of the scene\n");
        return;
    }
    std::string const text = path ? path : "";
    param.value.file = strings_.intern(text);
    node->second->setImage(text.empty() ? nullptr : image(text));
}

std::shared_ptr<BrushImage const> BrushGraph::image(std::string const& path) {
    std::error_code error;
    std::filesystem::path const file = brushImagePath(path);
    auto const time = std::filesystem::last_write_time(file, error);
    auto const bytes = error ? 0 : std::filesystem::file_size(file, error);
    if (!error) {
        if (auto const found = images_.find(path);
            found != images_.end() && found->second.time == time && found->second.bytes == bytes) {
            if (auto shared = found->second.image.lock()) {
                return shared;
            }
        }
    }
    std::string message;
    auto read = readBrushImage(path, message);
    if (!read) {
        nyx_warning("nyxrender: %s\n", message.c_str());
    } else if (!error) {
        images_.insert_or_assign(path, CachedImage{time, bytes, read});
    }
    return read;
}

} // namespace nyx::embedded
