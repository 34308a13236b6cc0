#include "painting/createBrush.h"

#include "painting/ZPainterBrush.h"

#include "nyxrender/nyxColor.h"
#include "nyxrender/nyxRT_api.h"
#include "nyxrender/nyxScene.h"
#include "nyxrender/nyxScene_api.h"

namespace zsg {
namespace {

using nyx::painter::nyxBrush_node;

/// Makes one node: begun on construction, finished by end().
class NodeMaker {
public:
    NodeMaker(nyxScene_api& scene, char const* kind) : scene_(scene) {
        scene_.begin_brush_node(kind, -1);
    }
    NodeMaker& set(char const* name, float value) {
        scene_.set_param(name, nyxScene_api::TypeFloat, value);
        return *this;
    }
    NodeMaker& set(char const* name, nyxColor const& value) {
        scene_.set_param(name, nyxScene_api::TypeColor, value);
        return *this;
    }
    NodeMaker& link(char const* name, nyxBrush_node* node) {
        scene_.set_param(name, nyxScene_api::TypeNode, node);
        return *this;
    }
    nyxBrush_node* end() { return scene_.end_brush_node(); }

private:
    nyxScene_api& scene_;
};

nyxBrush_node* makeGraph(nyxScene& scene, float size) {
    nyxScene_api& api = *nyx_get_scene_api(&scene); // null for a null scene only
    double const stated = nyx_scene_unit_scale(scene);
    double const unit = stated == 0.0 ? 1.0 : stated;
    auto const node = [&api](char const* kind) { return NodeMaker(api, kind); };

    nyxBrush_node* const alpha = node("nyx.painter.stamp.float.solid01").set("value", 1.0f).end();
    nyxBrush_node* const flow =
        node("nyx.painter.stamp.float.solid01jitter").set("value", 1.0f).set("jitter", 0.0f).end();
    nyxBrush_node* const pixelSize =
        node("nyx.painter.stamp.float.solidjitter").set("value", 5.0f).set("jitter", 0.0f).end();
    nyxBrush_node* const worldSize = node("nyx.painter.stamp.float.solidjitter")
                                         .set("value", static_cast<float>(size * 0.05 / unit))
                                         .set("jitter", 0.0f)
                                         .end();
    nyxBrush_node* const stencil = node("nyx.painter.stamp.stencil.image").end();
    nyxBrush_node* const image = node("nyx.painter.stamp.color.image").end();
    nyxBrush_node* const color = node("nyx.painter.stamp.color.shader")
                                     .set("color", nyxColor{1, 1, 1})
                                     .link("texture", image)
                                     .end();
    nyxBrush_node* const basic = node("nyx.painter.stamp.basic.default")
                                     .set("spacing_world", static_cast<float>(size * 0.01))
                                     .link("alpha", alpha)
                                     .link("flow", flow)
                                     .link("size_px", pixelSize)
                                     .link("size_world", worldSize)
                                     .link("stencil", stencil)
                                     .end();
    return node("nyx.painter.stamp.brush").link("color", color).link("basic", basic).end();
}

} // namespace

std::unique_ptr<IPainterBrush> createBrush(nyxRT_api* rtApi, float size, nyx::MaterialId material) {
    nyxScene* const scene = rtApi ? rtApi->scene() : nullptr;
    return std::make_unique<ZPainterBrush>(scene ? makeGraph(*scene, size) : nullptr, rtApi,
                                           material);
}

} // namespace zsg
