#pragma once

#include "paint/composite.h"

#include "nyxembedded/LayerPixels.h"
#include "nyxembedded/Stroke.h"
#include "nyxembedded/SurfaceInfo.h"
#include "nyxrender/nyxCustomSurface.h"

#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace nyx::embedded {

class Journal;
class StringPool;

/// One paint surface: its layers in render order, with their pixels. Any thread; every call is
/// atomic. Calls of the renderer's interface name a layer by its render index; hosts name it by its
/// id, which stays right while layers move.
class Surface final : public nyxCustomSurface {
public:
    /// The longest edge, in texels.
    static constexpr int mostTexels = 16384;

    struct Layer {
        LayerInfo info;
        LayerPixels pixels;
    };

    /// A surface with one layer, id 1, unnamed.
    Surface(nyx::SurfaceId id, std::string name, int resolution);
    /// One whose layers are given, as a scene file tells them.
    Surface(SurfaceInfo const& info, std::vector<Layer> layers);

    /// Where texts live that are handed out and calls are noted, and what is called before a layer
    /// is named, unless it is empty. All are borrowed. Called before anything else.
    void belongTo(StringPool& strings, Journal& journal, std::function<void()> const& barrier);

    [[nodiscard]] nyx::SurfaceId id() const override;
    [[nodiscard]] bool deleted() const override;
    void set_deleted(bool deleted) override;
    [[nodiscard]] nyx::Unique_array<nyxLayerInfo> layers() const override;
    [[nodiscard]] std::uint32_t edit_layer() const override;
    void set_edit_layer(std::uint32_t index) override;
    void add_layer(std::uint32_t index, std::uint32_t layer_id) override;
    /// The edit layer stays the same index.
    void move_layer(std::uint32_t from, std::uint32_t to) override;
    void set_layer_deleted(std::uint32_t index, bool deleted) override;
    void set_layer_blend_mode(std::uint32_t index, nyx::ColorBlendMode mode) override;
    void set_layer_visible(std::uint32_t index, bool visible) override;
    void set_layer_name(std::uint32_t index, char const* name) override;
    void set_layer_background(std::uint32_t index, nyxColor_rgba const& color) override;

    [[nodiscard]] int resolution() const;
    [[nodiscard]] SurfaceInfo info() const;
    [[nodiscard]] std::vector<Layer> layersWithPixels() const;
    /// Nothing for an unknown layer.
    [[nodiscard]] std::optional<LayerPixels> pixels(std::uint32_t layerId) const;
    /// False for an unknown layer, and for pixels of another resolution.
    bool setPixels(std::uint32_t layerId, LayerPixels pixels);
    bool paint(std::uint32_t layerId, Stroke const& stroke);
    /// Snapshots of the layers that are visible and not deleted, from the bottom up.
    struct Shown {
        std::vector<CompositeLayer> layers;
        int resolution = 0;
    };
    [[nodiscard]] Shown shown() const;
    /// False when the resolution is out of range.
    bool resample(int resolution);
    /// Lets go of the pixels of a surface that is no longer part of the scene.
    void dropPixels();

private:
    /// The layer of an index or an id; null, and counted, when there is none.
    [[nodiscard]] Layer* at(std::uint32_t index);
    [[nodiscard]] Layer* withId(std::uint32_t layerId) const;
    void insert(std::size_t index, Layer layer);

    nyx::SurfaceId const id_;
    std::string const name_;
    StringPool* strings_ = nullptr;
    Journal* journal_ = nullptr;
    std::function<void()> const* barrier_ = nullptr;

    mutable std::mutex mutex_; // over what follows
    int resolution_;
    bool deleted_ = false;
    std::uint32_t editLayer_ = 0;
    std::unordered_map<std::uint32_t, std::unique_ptr<Layer>> byId_; // no two have one id
    std::vector<Layer*> layers_; // the same in render order: moves are of pointers
    mutable unsigned ignoredCalls_ = 0;
};

} // namespace nyx::embedded
