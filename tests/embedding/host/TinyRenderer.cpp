#include "TinyRenderer.h"

nyxRT_api::~nyxRT_api() = default;

namespace {

nyxParameter_edit* copyOf(nyxParameter_edit const& block) {
    nyxParameter_edit* const copy = makeBlock(block.kind, block.record_id);
    copyValues(block, *copy);
    return copy;
}

nyxParameter_edit* find(std::deque<Block> const& records, std::uint32_t id) {
    return id - 1 < records.size() ? records[id - 1].get() : nullptr;
}

} // namespace

nyxParameter_edit* TinyRenderer::color_params(nyx::ColorId id) {
    nyxParameter_edit const* const record = find(scene_.colors, id.toUint());
    return record ? copyOf(*record) : nullptr;
}

nyxParameter_edit* TinyRenderer::colorway_params(nyx::ColorwayId id) {
    nyxParameter_edit const* const record = find(scene_.colorways, id.toUint());
    return record ? copyOf(*record) : nullptr;
}

nyxParameter_edit* TinyRenderer::color_settings_params() { return copyOf(*scene_.settings); }

void TinyRenderer::commit_color_params(nyxParameter_edit* block) {
    if (nyxParameter_edit* const record = find(scene_.colors, block->record_id)) {
        char const* const name = valueOf(*block, "display_name").text;
        scene_.calls.push_back("commit_color_params " + std::string(name ? name : ""));
        copyValues(*block, *record);
        ++scene_.colorRevision; // more often than needed
        changedColors_.emplace_back(block->record_id);
    }
}

void TinyRenderer::commit_colorway_params(nyxParameter_edit* block) {
    if (nyxParameter_edit* const record = find(scene_.colorways, block->record_id)) {
        scene_.calls.push_back("commit_colorway_params");
        copyValues(*block, *record);
        ++scene_.colorwayRevision;
    }
}

void TinyRenderer::commit_color_settings_params(nyxParameter_edit* block) {
    copyValues(*block, *scene_.settings);
}

nyxParameter_edit* TinyRenderer::clone_color_params(nyxParameter_edit const* block,
                                                    bool copy_values) {
    return !block        ? nullptr
           : copy_values ? copyOf(*block)
                         : makeBlock(block->kind, block->record_id);
}

void TinyRenderer::change_layer_lights(nyx::LightLayerId layer, nyx::Span<nyx::ObjectId> lights,
                                       int operation) {
    scene_.calls.push_back(std::string("change_layer_lights ") + (operation ? "out of " : "into ") +
                           std::to_string(layer.toUint()));
    if (operation) {
        scene_.layers->remove_lights(lights, layer);
    } else {
        scene_.layers->add_lights(lights, layer);
    }
}

void TinyRenderer::assign_layer_lights(nyx::LightLayerId layer, nyx::Span<nyx::ObjectId> lights) {
    scene_.calls.push_back("assign_layer_lights " + std::to_string(layer.toUint()));
    scene_.layers->add_lights(lights, layer);
}

void TinyRenderer::set_layer_flags(nyx::LightLayerId layer, nyx::Flags<layerFlags> flags) {
    scene_.calls.push_back("set_layer_flags " + std::to_string(layer.toUint()));
    scene_.layers->set_flags(layer, flags);
}

void TinyRenderer::call_after_sync(std::function<void()> function) {
    std::scoped_lock const lock(functionsMutex_);
    functions_.push_back(std::move(function));
}

void TinyRenderer::runAfterSync() {
    std::vector<std::function<void()>> functions;
    {
        std::scoped_lock const lock(functionsMutex_);
        functions.swap(functions_);
    }
    for (auto const& function : functions) {
        function();
    }
}
