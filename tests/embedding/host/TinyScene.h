#pragma once

#include "TinyBlock.h"

#include "nyxrender/nyxCustomSurface.h"
#include "nyxrender/nyxGroup_item.h"
#include "nyxrender/nyxLight_layer_db.h"
#include "nyxrender/nyxPainter.h"
#include "nyxrender/nyxScene_api.h"
#include "nyxrender/nyxScene_hierarchy.h"
#include "nyxrender/nyxShader.h"

#include <deque>
#include <map>
#include <memory>
#include <string>
#include <vector>

/// A light, which is all that this scene has of objects. It is its own shader.
class TinyLight final : public nyxGroup_item, public nyxShader {
public:
    explicit TinyLight(std::uint32_t id) : id_(id) {}
    nyx::GroupItemId id() const override { return nyx::GroupItemId(id_); }
    nyx::ObjectId object_id() const override { return nyx::ObjectId(id_); }
    bool is_light() const override { return true; }
    nyx::Span<nyxGroup_item*> children() const override { return {}; }
    nyxShader* shader() const override { return const_cast<TinyLight*>(this); }
    std::uint32_t light_layer_mask() const override { return mask; }
    bool info(unsigned) const override { return false; }

    std::uint32_t mask = 1;

private:
    std::uint32_t id_;
};

/// Writes every call that changes it into the scene's list of calls.
class TinySurface final : public nyxCustomSurface {
public:
    TinySurface(nyxScene& scene, std::uint32_t id) : scene_(scene), id_(id), layers_(1) {
        layers_[0].id = 1;
    }
    nyx::SurfaceId id() const override { return nyx::SurfaceId(id_); }
    bool deleted() const override { return deleted_; }
    void set_deleted(bool deleted) override { deleted_ = deleted; }
    nyx::Unique_array<nyxLayerInfo> layers() const override;
    std::uint32_t edit_layer() const override { return editLayer_; }
    void set_edit_layer(std::uint32_t index) override;
    void add_layer(std::uint32_t index, std::uint32_t layer_id) override;
    void move_layer(std::uint32_t from, std::uint32_t to) override;
    void set_layer_deleted(std::uint32_t index, bool deleted) override;
    void set_layer_blend_mode(std::uint32_t index, nyx::ColorBlendMode mode) override;
    void set_layer_visible(std::uint32_t index, bool visible) override;
    void set_layer_name(std::uint32_t index, char const* name) override;
    void set_layer_background(std::uint32_t index, nyxColor_rgba const& color) override;

private:
    template <class Change>
    void change(char const* call, std::uint32_t index, Change const& change);

    nyxScene& scene_;
    std::uint32_t id_;
    bool deleted_ = false;
    std::uint32_t editLayer_ = 0;
    std::vector<nyxLayerInfo> layers_; ///< bottom first
};

class TinyPainter final : public nyxPainter {
public:
    explicit TinyPainter(nyxScene& scene) : scene_(scene) {}
    ~TinyPainter() override = default;
    nyx::Unique_array<nyxPainter_surface> surfaces() const override;
    nyx::SurfaceId create_surface(char const* name, int resolution) override;
    nyxCustomSurface* surface(nyx::SurfaceId id) const override;
    bool change_resolution(nyxScene*, nyx::SurfaceId, unsigned) override { return false; }

private:
    nyxScene& scene_;
};

/// All calls of the library that changed something, one line each.
class nyxScene final : public nyxScene_api, public nyxScene_hierarchy, public nyxPainter_factory {
public:
    nyxScene() : layers(std::unique_ptr<nyxLight_layer_db>(new nyxLight_layer_db(*this))) {}

    void begin_color() override;
    nyxColor_record* end_color() override;
    void begin_colorway() override;
    nyx::ColorwayId const* end_colorway() override;
    void set_param(char const* name, int type, char const* text) override;
    void set_param(char const*, int, float) override {}
    void set_param(char const*, int, nyxColor const&) override {}
    void set_param(char const*, int, nyx::painter::nyxBrush_node*) override {}
    void begin_brush_node(char const*, int) override {}
    nyx::painter::nyxBrush_node* end_brush_node() override { return nullptr; } // no brushes here
    void load_brush_file(nyx::painter::nyxBrush_param&, char const*) override {}

    void walk(std::function<void(nyxGroup_item const&)> const& visit) const override;

    nyxPainter* create(char const* kind) override;
    void release(nyxPainter*) override {}

    TinyLight* light(nyx::ObjectId id);

    /// Calls of the renderer's that changed something, one line each.
    std::vector<std::string> calls;
    std::deque<std::string> texts;
    std::deque<Block> colors; ///< id n at n - 1
    std::deque<Block> colorways;
    Block settings{makeBlock(nyxParameter_edit::ColorSettingsKind, 0)};
    unsigned colorRevision = 1;
    unsigned colorwayRevision = 1;
    std::deque<TinyLight> lights;
    std::deque<TinySurface> surfaces;
    TinyPainter painter{*this};
    std::unique_ptr<nyxLight_layer_db> layers;

private:
    nyxColor_record made_;
    nyx::ColorwayId madeColorway_;
};
