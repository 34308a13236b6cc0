#pragma once

#include "store/BrushNode.h"

#include "nyxembedded/ColorRecord.h"
#include "nyxembedded/ColorwayRecord.h"
#include "nyxrender/nyxScene_api.h"

class nyxScene;

namespace nyx::embedded {

/// Makes records in a scene. One thing is under way at a time: a begin drops what was begun before,
/// and an end that does not match its begin makes nothing.
class SceneApi final : public nyxScene_api {
public:
    explicit SceneApi(nyxScene& scene) : scene_(scene) {}

    void begin_color() override;
    nyxColor_record* end_color() override;
    void begin_colorway() override;
    nyx::ColorwayId const* end_colorway() override;
    void set_param(char const* name, int type, char const* text) override;
    void set_param(char const* name, int type, float value) override;
    void set_param(char const* name, int type, nyxColor const& value) override;
    void set_param(char const* name, int type, nyx::painter::nyxBrush_node* node) override;
    void begin_brush_node(char const* kind, int extra) override;
    nyx::painter::nyxBrush_node* end_brush_node() override;
    void load_brush_file(nyx::painter::nyxBrush_param& parameter, char const* path) override;

private:
    enum class Making { Nothing, Color, Colorway, BrushNode };
    void begin(Making what);
    [[nodiscard]] bool end(Making what);
    [[nodiscard]] BrushNode::Param* brushParam(char const* name, int type, int wantedType);

    nyxScene& scene_;
    Making making_ = Making::Nothing;
    ColorRecord color_;
    ColorwayRecord colorway_;
    nyx::ColorwayId lastColorway_;
    std::unique_ptr<BrushNode> brushNode_; ///< null also while a node of unknown kind is made
};

} // namespace nyx::embedded
