#pragma once

#include "TinyScene.h"

#include "nyxrender/nyxRT_api.h"

#include <mutex>

namespace zsg {
class ISceneGraph;
}

/// The renderer's handle over one scene.
class TinyRenderer final : public nyxRT_api {
public:
    nyxScene* scene() override { return &scene_; }
    void lock() override { mutex_.lock(); }
    void unlock() override { mutex_.unlock(); }
    void set_modified(bool) override {}
    void refresh(int) override {}
    nyxParameter_edit* color_params(nyx::ColorId id) override;
    nyxParameter_edit* colorway_params(nyx::ColorwayId id) override;
    nyxParameter_edit* color_settings_params() override;
    void commit_color_params(nyxParameter_edit* block) override;
    void commit_colorway_params(nyxParameter_edit* block) override;
    void commit_color_settings_params(nyxParameter_edit* block) override;
    void release_color_params(nyxParameter_edit* block) override { freeBlock(block); }
    void release_colorway_params(nyxParameter_edit* block) override { freeBlock(block); }
    void release_color_settings_params(nyxParameter_edit* block) override { freeBlock(block); }
    nyxParameter_edit* clone_color_params(nyxParameter_edit const* block,
                                          bool copy_values) override;
    void change_layer_lights(nyx::LightLayerId layer, nyx::Span<nyx::ObjectId> lights,
                             int operation) override;
    void assign_layer_lights(nyx::LightLayerId layer, nyx::Span<nyx::ObjectId> lights) override;
    void set_layer_flags(nyx::LightLayerId layer, nyx::Flags<layerFlags> flags) override;
    void update_brush_node(nyx::painter::nyxBrush_node*) override {}
    void call_after_sync(std::function<void()> function) override;

    /// What a renderer does between two frames: takes its calls, and says what it has taken over.
    std::vector<std::string> takeCalls() { return std::exchange(scene_.calls, {}); }
    std::vector<nyx::ColorId> takeChangedColors() { return std::exchange(changedColors_, {}); }
    void runAfterSync();

private:
    nyxScene scene_;
    std::recursive_mutex mutex_;
    std::vector<nyx::ColorId> changedColors_;
    std::mutex functionsMutex_;
    std::vector<std::function<void()>> functions_;
};
