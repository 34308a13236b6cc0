#include "api/RtApi.h"

#include "api/ParameterBlocks.h"
#include "store/BrushGraph.h"
#include "store/ColorStore.h"
#include "store/ColorwayStore.h"
#include "store/LightLayers.h"
#include "store/Scene.h"
#include "store/SceneLights.h"

#include "nyxrender/nyx_warning.h"

#include <utility>

nyxRT_api::~nyxRT_api() = default;

namespace nyx::embedded {

namespace {

/// How the journal names a block: by the record that a commit would write to.
nyx::ColorId recordOf(nyxParameter_edit const* block) {
    return block ? nyx::ColorId(block->record_id) : nyx::ColorId();
}

} // namespace

nyxScene* RtApi::scene() { return scene_.faults().noScene ? nullptr : &scene_; }

void RtApi::lock() {
    mutex_.lock();
    owner_ = std::this_thread::get_id();
    ++lockDepth_;
    scene_.journal().write("lock");
}

void RtApi::unlock() {
    scene_.journal().write("unlock");
    if (owner_.load() != std::this_thread::get_id()) {
        nyx_warning("nyxrender: unlock() without lock()\n");
        return;
    }
    if (--lockDepth_ == 0) {
        owner_ = std::thread::id();
    }
    mutex_.unlock();
}

void RtApi::set_modified(bool modified) {
    scene_.journal().write("set_modified", modified);
    modified_ = modified;
}

void RtApi::refresh(int reason) {
    scene_.journal().write("refresh", reason);
    ++refreshes_;
}

nyxParameter_edit* RtApi::lend(nyxParameter_edit* block) {
    ++blocks_;
    return block;
}

nyxParameter_edit* RtApi::lendNew(nyxParameter_edit* block) {
    setGeneration(*block, scene_.generation());
    return lend(block);
}

bool RtApi::mayCommit(nyxParameter_edit const* block, std::int32_t kind) {
    if (!block || block->kind != kind) {
        return false;
    }
    if (generationOf(*block) == scene_.generation()) {
        return true;
    }
    if (std::exchange(warnedGeneration_, scene_.generation()) != scene_.generation()) {
        nyx_warning("nyxrender: edits of a scene that was replaced are not committed; end the root "
                    "before loading\n");
    }
    return false;
}

nyxParameter_edit* RtApi::color_params(nyx::ColorId id) {
    scene_.journal().write("color_params", id);
    ColorRecord const* const record = scene_.colors().find(id);
    return record ? lendNew(makeColorBlock(*record, scene_.strings())) : nullptr;
}

nyxParameter_edit* RtApi::colorway_params(nyx::ColorwayId id) {
    scene_.journal().write("colorway_params", id);
    ColorwayRecord const* const record = scene_.colorways().find(id);
    return record ? lendNew(makeColorwayBlock(*record, scene_.strings())) : nullptr;
}

nyxParameter_edit* RtApi::color_settings_params() {
    scene_.journal().write("color_settings_params");
    return scene_.faults().noSettings ? nullptr
                                      : lendNew(makeSettingsBlock(scene_.colorways().active()));
}

void RtApi::commit_color_params(nyxParameter_edit* block) {
    scene_.journal().write("commit_color_params", recordOf(block));
    if (!mayCommit(block, nyxParameter_edit::ColorKind)) {
        return;
    }
    ColorRecord const* const record = scene_.colors().find(nyx::ColorId(block->record_id));
    if (!record) {
        return;
    }
    ColorRecord values = *record;
    readBlock(*block, values);
    if (scene_.colors().update(values)) {
        notifications_.colorChanged(values.id);
    }
}

void RtApi::commit_colorway_params(nyxParameter_edit* block) {
    scene_.journal().write("commit_colorway_params", recordOf(block));
    if (!mayCommit(block, nyxParameter_edit::ColorwayKind)) {
        return;
    }
    ColorwayRecord const* const record = scene_.colorways().find(nyx::ColorwayId(block->record_id));
    if (!record) {
        return;
    }
    ColorwayRecord values = *record;
    readBlock(*block, values);
    scene_.colorways().update(values);
}

void RtApi::commit_color_settings_params(nyxParameter_edit* block) {
    scene_.journal().write("commit_color_settings_params");
    if (mayCommit(block, nyxParameter_edit::ColorSettingsKind)) {
        nyx::ColorwayId active = scene_.colorways().active();
        readBlock(*block, active);
        scene_.colorways().setActive(active);
    }
}

void RtApi::release(char const* call, nyxParameter_edit* block) {
    scene_.journal().write(call, recordOf(block));
    if (block) {
        releaseBlock(block);
        --blocks_;
    }
}

void RtApi::release_color_params(nyxParameter_edit* block) {
    release("release_color_params", block);
}

void RtApi::release_colorway_params(nyxParameter_edit* block) {
    release("release_colorway_params", block);
}

void RtApi::release_color_settings_params(nyxParameter_edit* block) {
    release("release_color_settings_params", block);
}

nyxParameter_edit* RtApi::clone_color_params(nyxParameter_edit const* block, bool copy_values) {
    scene_.journal().write("clone_color_params", recordOf(block));
    return block ? lend(cloneBlock(*block, copy_values)) : nullptr;
}

void RtApi::change_layer_lights(nyx::LightLayerId layer, nyx::Span<nyx::ObjectId> lights,
                                int operation) {
    scene_.journal().write("change_layer_lights", layer, lights, operation);
    if (operation == 0) {
        scene_.lights().put(lights, layer);
    } else if (operation == 1) {
        scene_.lights().take(lights, layer);
    }
}

void RtApi::assign_layer_lights(nyx::LightLayerId layer, nyx::Span<nyx::ObjectId> lights) {
    scene_.journal().write("assign_layer_lights", layer, lights);
    scene_.lights().put(lights, layer);
}

void RtApi::set_layer_flags(nyx::LightLayerId layer, nyx::Flags<layerFlags> flags) {
    scene_.journal().write("set_layer_flags", layer, flags.bits());
    scene_.lightLayers().setFlags(layer, flags);
}

void RtApi::update_brush_node(nyx::painter::nyxBrush_node* node) {
    scene_.journal().write("update_brush_node", node ? node->kind() : nullptr);
    if (BrushNode* const known = scene_.brushes().find(node)) {
        known->publish();
    }
}

void RtApi::call_after_sync(std::function<void()> function) {
    scene_.journal().write("call_after_sync");
    notifications_.callAfterSync(std::move(function));
}

} // namespace nyx::embedded
