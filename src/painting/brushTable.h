#pragma once

#include "painting/BrushFields.h"
#include "zsg/values/Quantity.h"

#include "nyxrender/nyxBrush_node.h"

#include <QtGlobal>

#include <array>
#include <variant>

namespace zsg {

using BrushNodeValue = nyx::painter::nyxBrush_param::Value;

/// Where a parameter's value lives: in the node parameter whose path key is the parameter's name,
/// or in a field of the brush. The member's type is the parameter's.
using BrushBinding =
    std::variant<float BrushNodeValue::*, int BrushNodeValue::*, bool BrushNodeValue::*,
                 nyxShader * BrushNodeValue::*, float BrushFields::*, bool BrushFields::*,
                 QString BrushFields::*, ZColorExt BrushFields::*, Enumerable BrushFields::*>;

/// One parameter of a brush.
struct BrushRow {
    enum class Limits { FromHint, Percent };

    char const* key;
    BrushBinding binding;
    char const* label;
    bool translateLabel = true;
    char const* toolTip = ""; ///< translated unless it is empty
    Quantity quantity = Quantity::None;
    Limits limits = Limits::FromHint;
    std::array<char const*, 3> options = {}; ///< labels of the ids 0, 1, …; null ends them
};

/// Every parameter of a brush. "TODO!" and the "Opacity" of basic_opacity_pen_pressure are the
/// texts to show.
inline constexpr std::array<BrushRow, 32> brushTable{{
    {.key = "basic_pen_pressure_mode",
     .binding = &BrushNodeValue::i,
     .label = "",
     .translateLabel = false},
    {.key = "color_shader",
     .binding = &BrushNodeValue::shader,
     .label = QT_TRANSLATE_NOOP("ZPainterBrush", "Brush Color")},
    {.key = "color_color",
     .binding = &BrushFields::color,
     .label = QT_TRANSLATE_NOOP("ZPainterBrush", "Brush Color")},
    {.key = "color_texture_filepath",
     .binding = &BrushFields::textureFilePath,
     .label = QT_TRANSLATE_NOOP("ZPainterBrush", "Brush Color")},
    {.key = "basic_rotation",
     .binding = &BrushNodeValue::f,
     .label = QT_TRANSLATE_NOOP("ZPainterBrush", "Angle"),
     .toolTip = QT_TRANSLATE_NOOP("ZPainterBrush", "Rotate the brush"),
     .quantity = Quantity::Angle},
    {.key = "basic_rotation_jitter",
     .binding = &BrushNodeValue::f,
     .label = QT_TRANSLATE_NOOP("ZPainterBrush", "Angle Jitter"),
     .toolTip = QT_TRANSLATE_NOOP(
         "ZPainterBrush", "Angle Jitter can be used to create variance in the brush stroke")},
    {.key = "basic_size_pen_pressure",
     .binding = &BrushFields::sizePenPressure,
     .label = "TODO!",
     .translateLabel = false,
     .toolTip = QT_TRANSLATE_NOOP(
         "ZPainterBrush",
         "Use pen pressure to control size.\nRequires a pressure sensitive tablet.")},
    {.key = "basic_size_px_value",
     .binding = &BrushNodeValue::f,
     .label = QT_TRANSLATE_NOOP("ZPainterBrush", "Size"),
     .toolTip = QT_TRANSLATE_NOOP("ZPainterBrush", "Adjust the size of the brush"),
     .quantity = Quantity::Pixels},
    {.key = "basic_size_px_jitter",
     .binding = &BrushNodeValue::f,
     .label = QT_TRANSLATE_NOOP("ZPainterBrush", "Size Jitter"),
     .toolTip = QT_TRANSLATE_NOOP(
         "ZPainterBrush", "Size Jitter can be used to create variance in the brush stroke")},
    {.key = "basic_size_world_value",
     .binding = &BrushNodeValue::f,
     .label = QT_TRANSLATE_NOOP("ZPainterBrush", "Size"),
     .toolTip = QT_TRANSLATE_NOOP("ZPainterBrush", "Adjust the size of the brush"),
     .quantity = Quantity::WorldLength},
    {.key = "basic_size_world_jitter",
     .binding = &BrushNodeValue::f,
     .label = QT_TRANSLATE_NOOP("ZPainterBrush", "Size Jitter"),
     .toolTip = QT_TRANSLATE_NOOP(
         "ZPainterBrush", "Size Jitter can be used to create variance in the brush stroke")},
    {.key = "basic_spacing_px",
     .binding = &BrushNodeValue::f,
     .label = QT_TRANSLATE_NOOP("ZPainterBrush", "Spacing"),
     .toolTip = QT_TRANSLATE_NOOP("ZPainterBrush", "Adjust the spacing of the brush"),
     .quantity = Quantity::Pixels},
    {.key = "basic_spacing_world",
     .binding = &BrushNodeValue::f,
     .label = QT_TRANSLATE_NOOP("ZPainterBrush", "Spacing"),
     .toolTip = QT_TRANSLATE_NOOP("ZPainterBrush", "Adjust the spacing of the brush"),
     .quantity = Quantity::WorldLength},
    {.key = "basic_spacing_percent",
     .binding = &BrushNodeValue::f,
     .label = QT_TRANSLATE_NOOP("ZPainterBrush", "Spacing"),
     .toolTip = QT_TRANSLATE_NOOP("ZPainterBrush", "Adjust the spacing of the brush"),
     .quantity = Quantity::Percent},
    {.key = "basic_flow_pen_pressure",
     .binding = &BrushFields::flowPenPressure,
     .label = "TODO!",
     .translateLabel = false,
     .toolTip = QT_TRANSLATE_NOOP(
         "ZPainterBrush",
         "Use pen pressure to control flow.\nRequires a pressure sensitive tablet.")},
    {.key = "basic_flow_value",
     .binding = &BrushNodeValue::f,
     .label = QT_TRANSLATE_NOOP("ZPainterBrush", "Flow"),
     .toolTip = QT_TRANSLATE_NOOP("ZPainterBrush", "Adjust the flow of the brush")},
    {.key = "basic_flow_value_percent",
     .binding = &BrushFields::flowPercent,
     .label = QT_TRANSLATE_NOOP("ZPainterBrush", "Flow"),
     .toolTip = QT_TRANSLATE_NOOP("ZPainterBrush", "Adjust the flow of the brush"),
     .quantity = Quantity::Percent,
     .limits = BrushRow::Limits::Percent},
    {.key = "basic_flow_jitter",
     .binding = &BrushNodeValue::f,
     .label = QT_TRANSLATE_NOOP("ZPainterBrush", "Flow Jitter"),
     .toolTip = QT_TRANSLATE_NOOP(
         "ZPainterBrush", "Flow Jitter can be used to create variance in the brush stroke")},
    {.key = "basic_opacity",
     .binding = &BrushNodeValue::f,
     .label = QT_TRANSLATE_NOOP("ZPainterBrush", "Opacity"),
     .toolTip = QT_TRANSLATE_NOOP("ZPainterBrush", "Adjust the opacity of the brush")},
    {.key = "basic_opacity_percent",
     .binding = &BrushFields::opacityPercent,
     .label = QT_TRANSLATE_NOOP("ZPainterBrush", "Opacity"),
     .toolTip = QT_TRANSLATE_NOOP("ZPainterBrush", "Adjust the opacity of the brush"),
     .quantity = Quantity::Percent,
     .limits = BrushRow::Limits::Percent},
    {.key = "basic_opacity_pen_pressure",
     .binding = &BrushFields::opacityPenPressure,
     .label = QT_TRANSLATE_NOOP("ZPainterBrush", "Opacity"),
     .toolTip = QT_TRANSLATE_NOOP(
         "ZPainterBrush",
         "Use pen pressure to control opacity.\nRequires a pressure sensitive tablet.")},
    {.key = "basic_hardness",
     .binding = &BrushNodeValue::f,
     .label = QT_TRANSLATE_NOOP("ZPainterBrush", "Hardness"),
     .toolTip = QT_TRANSLATE_NOOP("ZPainterBrush", "Adjust the hardness of the brush")},
    {.key = "basic_hardness_percent",
     .binding = &BrushFields::hardnessPercent,
     .label = QT_TRANSLATE_NOOP("ZPainterBrush", "Hardness"),
     .toolTip = QT_TRANSLATE_NOOP("ZPainterBrush", "Adjust the hardness of the brush"),
     .quantity = Quantity::Percent,
     .limits = BrushRow::Limits::Percent},
    {.key = "basic_directional",
     .binding = &BrushNodeValue::b,
     .label = QT_TRANSLATE_NOOP("ZPainterBrush", "Follow Path"),
     .toolTip =
         QT_TRANSLATE_NOOP("ZPainterBrush", "Rotate the brush with the direction of the stroke")},
    {.key = "basic_stencil_filepath",
     .binding = &BrushFields::stencilFilePath,
     .label = QT_TRANSLATE_NOOP("ZPainterBrush", "Brush Shape")},
    {.key = "basic_stencil_use_alpha",
     .binding = &BrushNodeValue::b,
     .label = QT_TRANSLATE_NOOP("ZPainterBrush", "Use alpha")},
    {.key = "basic_camera_projection",
     .binding = &BrushNodeValue::b,
     .label = QT_TRANSLATE_NOOP("ZPainterBrush", "Use Camera Projection"),
     .toolTip = QT_TRANSLATE_NOOP(
         "ZPainterBrush", "Projects the brush from the camera instead of normal to the object")},
    {.key = "basic_draw_on_plane",
     .binding = &BrushNodeValue::b,
     .label = QT_TRANSLATE_NOOP("ZPainterBrush", "Only Draw on Plane"),
     .toolTip =
         QT_TRANSLATE_NOOP("ZPainterBrush", "Picks a plane from the starting point, to paint in")},
    {.key = "basic_adaptive_spacing",
     .binding = &BrushNodeValue::b,
     .label = QT_TRANSLATE_NOOP("ZPainterBrush", "Scale with size")},
    {.key = "basic_space",
     .binding = &BrushFields::spaceUnit,
     .label = QT_TRANSLATE_NOOP("ZPainterBrush", "Space Unit"),
     .options = {QT_TRANSLATE_NOOP("ZPainterBrush", "Scene Units"),
                 QT_TRANSLATE_NOOP("ZPainterBrush", "Pixel")}},
    {.key = "color_selection",
     .binding = &BrushFields::colorSelection,
     .label = QT_TRANSLATE_NOOP("ZPainterBrush", "Color Selection"),
     .options = {QT_TRANSLATE_NOOP("ZPainterBrush", "Solid Color"),
                 QT_TRANSLATE_NOOP("ZPainterBrush", "Texture"),
                 QT_TRANSLATE_NOOP("ZPainterBrush", "Shader")}},
    {.key = "basic_mode",
     .binding = &BrushFields::paintMode,
     .label = QT_TRANSLATE_NOOP("ZPainterBrush", "Paint Mode"),
     .options = {QT_TRANSLATE_NOOP("ZPainterBrush", "Stroke"),
                 QT_TRANSLATE_NOOP("ZPainterBrush", "Stamp")}},
}};

} // namespace zsg
