#pragma once

#include "api/Notifications.h"

#include "nyxrender/nyxRT_api.h"

#include <atomic>
#include <cstddef>
#include <mutex>
#include <thread>

class nyxScene;

namespace nyx::embedded {

/// The run-time API over one scene.
class RtApi final : public nyxRT_api {
public:
    RtApi(nyxScene& scene, Notifications& notifications)
        : scene_(scene), notifications_(notifications) {}

    nyxScene* scene() override;
    void lock() override;
    /// Of a thread that does not hold the lock: warned about and ignored.
    void unlock() override;
    void set_modified(bool modified) override;
    void refresh(int reason) override;

    [[nodiscard]] nyxParameter_edit* color_params(nyx::ColorId id) override;
    [[nodiscard]] nyxParameter_edit* colorway_params(nyx::ColorwayId id) override;
    [[nodiscard]] nyxParameter_edit* color_settings_params() override;
    void commit_color_params(nyxParameter_edit* block) override;
    void commit_colorway_params(nyxParameter_edit* block) override;
    void commit_color_settings_params(nyxParameter_edit* block) override;
    void release_color_params(nyxParameter_edit* block) override;
    void release_colorway_params(nyxParameter_edit* block) override;
    void release_color_settings_params(nyxParameter_edit* block) override;
    [[nodiscard]] nyxParameter_edit* clone_color_params(nyxParameter_edit const* block,
                                                        bool copy_values) override;

    void change_layer_lights(nyx::LightLayerId layer, nyx::Span<nyx::ObjectId> lights,
                             int operation) override;
    void assign_layer_lights(nyx::LightLayerId layer, nyx::Span<nyx::ObjectId> lights) override;
    void set_layer_flags(nyx::LightLayerId layer, nyx::Flags<layerFlags> flags) override;
    /// From now on strokes are painted with the present values of the node.
    void update_brush_node(nyx::painter::nyxBrush_node* node) override;

    void call_after_sync(std::function<void()> function) override;

    [[nodiscard]] std::size_t blocksOnLoan() const { return blocks_; }
    [[nodiscard]] int lockDepth() const { return lockDepth_; }
    [[nodiscard]] bool isModified() const { return modified_; }
    void setUnmodified() { modified_ = false; }
    [[nodiscard]] unsigned refreshCount() const { return refreshes_; }

private:
    nyxParameter_edit* lend(nyxParameter_edit* block);
    nyxParameter_edit* lendNew(nyxParameter_edit* block);
    /// Whether a commit may write: not a block of another kind, nor one lent before a load.
    [[nodiscard]] bool mayCommit(nyxParameter_edit const* block, std::int32_t kind);
    void release(char const* call, nyxParameter_edit* block);

    nyxScene& scene_;
    Notifications& notifications_;
    std::recursive_mutex mutex_;
    std::atomic<std::thread::id> owner_;
    std::atomic<int> lockDepth_{0};
    std::size_t blocks_ = 0;
    unsigned warnedGeneration_ = 0;
    bool modified_ = false;
    unsigned refreshes_ = 0;
};

} // namespace nyx::embedded
