#include "store/BrushKinds.h"

namespace nyx::embedded {

namespace {

constexpr int Color = nyxScene_api::TypeColor;
constexpr int Float = nyxScene_api::TypeFloat;
constexpr int Node = nyxScene_api::TypeNode;

constexpr char const* fraction = "-limits,0,1-\n-range,0,1-\n";
constexpr char const* angle = "-limits,-360,360-\n-range,-180,180-\n";
constexpr char const* length = "-limits,0,100000-\n";
constexpr char const* percent = "-limits,1,1000-\n-range,1,200-\n";

constexpr BrushParamKind solid01[] = {{"value", Float, 1, fraction}};
constexpr BrushParamKind solid01jitter[] = {{"value", Float, 1, fraction},
                                            {"jitter", Float, 0, fraction}};
constexpr BrushParamKind solidjitter[] = {{"value", Float, 1, length},
                                          {"jitter", Float, 0, fraction}};
constexpr BrushParamKind image[] = {{"filepath", BrushFile}};
constexpr BrushParamKind colorShader[] = {{"color", Color, 1},
                                          {"shader", BrushShader},
                                          {"selection", BrushInteger, 0, "-limits,0,2-\n"},
                                          {"texture", Node}};
constexpr BrushParamKind basic[] = {{"pen_pressure_mode", BrushInteger, 0, "-limits,0,7-\n"},
                                    {"rotation", Float, 0, angle},
                                    {"rotation_jitter", Float, 0, fraction},
                                    {"spacing_px", Float, 1, length},
                                    {"spacing_world", Float, 0.01f, length},
                                    {"spacing_percent", Float, 25, percent},
                                    {"opacity", Float, 1, fraction},
                                    {"hardness", Float, 0.8f, fraction},
                                    {"directional", BrushBoolean},
                                    {"stencil_use_alpha", BrushBoolean},
                                    {"camera_projection", BrushBoolean},
                                    {"draw_on_plane", BrushBoolean},
                                    {"adaptive_spacing", BrushBoolean, 1},
                                    {"space", BrushInteger, 0, "-limits,0,1-\n"},
                                    {"mode", BrushInteger, 0, "-limits,0,1-\n"},
                                    {"alpha", Node},
                                    {"flow", Node},
                                    {"size_px", Node},
                                    {"size_world", Node},
                                    {"stencil", Node}};
constexpr BrushParamKind brush[] = {{"color", Node}, {"basic", Node}};

constexpr BrushKind kinds[] = {
    {"nyx.painter.stamp.float.solid01", solid01},
    {"nyx.painter.stamp.float.solid01jitter", solid01jitter},
    {"nyx.painter.stamp.float.solidjitter", solidjitter},
    {"nyx.painter.stamp.stencil.image", image},
    {"nyx.painter.stamp.color.image", image},
    {"nyx.painter.stamp.color.shader", colorShader},
    {"nyx.painter.stamp.basic.default", basic},
    {"nyx.painter.stamp.brush", brush},
};

} // namespace

BrushKind const* findBrushKind(std::string_view name) {
    for (BrushKind const& kind : kinds) {
        if (name == kind.name) {
            return &kind;
        }
    }
    return nullptr;
}

} // namespace nyx::embedded
