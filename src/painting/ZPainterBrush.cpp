#include "painting/ZPainterBrush.h"

#include "painting/brushTable.h"
#include "painting/logging.h"
#include "values/PointerVariant.h"

#include "nyxrender/nyxRT_api.h"
#include "nyxrender/nyxScene.h"
#include "nyxrender/nyxScene_api.h"

#include <QCoreApplication>

#include <memory>
#include <type_traits>
#include <utility>

namespace zsg {

using nyx::painter::nyxBrush_node;
using nyx::painter::nyxBrush_param;

namespace {

QString translated(char const* text) { return QCoreApplication::translate("ZPainterBrush", text); }

/// The options of a row, the first one selected.
Enumerable optionsOf(BrushRow const& row) {
    Enumerable options;
    for (char const* const label : row.options) {
        if (label) {
            options.emplaceBack(static_cast<int>(options.size()), translated(label));
        }
    }
    return options;
}

/// The parameter of a row with its value at `target`.
template <class T>
Parameter makeParameter(BrushRow const& row, T* target, char const* hint) {
    Parameter::Builder builder(QString::fromLatin1(row.key), row.translateLabel
                                                                 ? translated(row.label)
                                                                 : QString::fromLatin1(row.label));
    builder.setHint(hint).setQuantity(row.quantity);
    if (*row.toolTip != '\0') {
        builder.setToolTip(translated(row.toolTip));
    }
    if (row.limits == BrushRow::Limits::Percent) {
        builder.setHasLimits(true).setMinimum(0.0f).setMaximum(100.0f);
    }
    auto holder = std::make_unique<PointerVariant<T>>(target);
    builder.setValue(holder.release()); // the parameter's from its construction on
    return Parameter(builder);
}

/// What a row's binding points into.
template <class Member>
struct OwnerOf;
template <class T, class Owner>
struct OwnerOf<T Owner::*> {
    using type = Owner;
};

/// The bits of basic_pen_pressure_mode.
constexpr int flowPressure = 1;
constexpr int opacityPressure = 2;
constexpr int sizePressure = 4;

/// The ids of color_selection.
constexpr int solidColor = 0;
constexpr int textureColor = 1;
constexpr int shaderColor = 2;

} // namespace

ZPainterBrush::ZPainterBrush(nyxBrush_node* root, nyxRT_api* rtApi, nyx::MaterialId material)
    : root_(root), rtApi_(rtApi), nodes_(root), material_(material) {
    addTable();
}

ZPainterBrush::~ZPainterBrush() = default;

void ZPainterBrush::addTable() {
    parameters_.reserve(static_cast<qsizetype>(brushTable.size()));
    for (BrushRow const& row : brushTable) {
        std::visit(
            [&](auto member) {
                using Member = decltype(member);
                if constexpr (std::is_same_v<typename OwnerOf<Member>::type, BrushFields>) {
                    if constexpr (std::is_same_v<Member, Enumerable BrushFields::*>) {
                        fields_.*member = optionsOf(row);
                    }
                    addParameter(makeParameter(row, &(fields_.*member), nullptr));
                } else if (nyxBrush_param* const record = nodes_.find(row.key)) {
                    addParameter(makeParameter(row, &(record->value.*member), record->hint));
                } else {
                    qCDebug(zsgPainting, "Could not find bep for %s", row.key);
                }
            },
            row.binding);
    }
}

Parameter ZPainterBrush::addParameter(Parameter const& parameter) {
    if (!parameter.isValid()) {
        qCDebug(zsgPainting, "** Trying to add invalid parameter %s",
                qUtf8Printable(parameter.name()));
        return Parameter();
    }
    return *parameters_.insert(parameter.name(), parameter);
}

template <class T>
T* ZPainterBrush::nodeValue(std::string_view key, T BrushNodeValue::*member) const {
    nyxBrush_param* const record = nodes_.find(key);
    return record ? &(record->value.*member) : nullptr;
}

Parameter ZPainterBrush::parameter(QString const& name) const { return parameters_.value(name); }

void ZPainterBrush::updateFromNode() {
    BrushFields& f = fields_;
    if (auto const* rgb = nodeValue("color_color", &BrushNodeValue::c)) {
        f.color.setColor(ZColor((*rgb)[0], (*rgb)[1], (*rgb)[2]), ZColorExt::NameOp::Keep);
    }
    if (int const* space = nodeValue("basic_space", &BrushNodeValue::i)) {
        f.spaceUnit.setSelection(*space);
    }
    if (int const* selection = nodeValue("color_selection", &BrushNodeValue::i)) {
        f.colorSelection.setSelection(*selection);
    }
    if (int const* mode = nodeValue("basic_mode", &BrushNodeValue::i)) {
        f.paintMode.setSelection(*mode);
    }
    if (float const* hardness = nodeValue("basic_hardness", &BrushNodeValue::f)) {
        f.hardnessPercent = 100.0f * *hardness;
    }
    if (float const* opacity = nodeValue("basic_opacity", &BrushNodeValue::f)) {
        f.opacityPercent = 100.0f * *opacity;
    }
    if (float const* flow = nodeValue("basic_flow_value", &BrushNodeValue::f)) {
        f.flowPercent = 100.0f * *flow;
    }
    if (int const* pressure = nodeValue("basic_pen_pressure_mode", &BrushNodeValue::i)) {
        f.flowPenPressure = (*pressure & flowPressure) != 0;
        f.opacityPenPressure = (*pressure & opacityPressure) != 0;
        f.sizePenPressure = (*pressure & sizePressure) != 0;
    }
    if (auto const* texture = nodeValue("color_texture_filepath", &BrushNodeValue::file)) {
        f.textureFilePath = QString::fromUtf8(*texture);
    }
    if (auto const* stencil = nodeValue("basic_stencil_filepath", &BrushNodeValue::file)) {
        f.stencilFilePath = QString::fromUtf8(*stencil);
    }
}

void ZPainterBrush::applyToNode() {
    BrushFields& f = fields_;
    if (auto* rgb = nodeValue("color_color", &BrushNodeValue::c)) {
        nyxColor_rgba const active = f.color.rgba();
        (*rgb)[0] = active.r;
        (*rgb)[1] = active.g;
        (*rgb)[2] = active.b;
    }
    if (int* space = nodeValue("basic_space", &BrushNodeValue::i)) {
        *space = f.spaceUnit.getSelection();
    }
    parameter(QStringLiteral("basic_hardness")).setValue(f.hardnessPercent / 100.0f);
    parameter(QStringLiteral("basic_opacity")).setValue(f.opacityPercent / 100.0f);
    parameter(QStringLiteral("basic_flow_value")).setValue(f.flowPercent / 100.0f);

    bool const hasShader =
        parameter(QStringLiteral("color_shader")).value<nyxShader*>().value_or(nullptr) != nullptr;
    bool const hasTexture = !parameter(QStringLiteral("color_texture_filepath"))
                                 .value<QString>()
                                 .value_or(QString())
                                 .isEmpty();
    f.colorSelection.setSelection(hasShader ? shaderColor : hasTexture ? textureColor : solidColor);
    if (int* selection = nodeValue("color_selection", &BrushNodeValue::i)) {
        *selection = f.colorSelection.getSelection();
    }
    if (int* mode = nodeValue("basic_mode", &BrushNodeValue::i)) {
        *mode = f.paintMode.getSelection();
    }
    loadFile("color_texture_filepath", f.textureFilePath);
    loadFile("basic_stencil_filepath", f.stencilFilePath);
    if (int* pressure = nodeValue("basic_pen_pressure_mode", &BrushNodeValue::i)) {
        *pressure = (f.flowPenPressure ? flowPressure : 0) |
                    (f.opacityPenPressure ? opacityPressure : 0) |
                    (f.sizePenPressure ? sizePressure : 0);
    }
    if (rtApi_) {
        for (nyxBrush_node* const node : nodes_.nodes()) {
            rtApi_->update_brush_node(node);
        }
    }
}

// Also an empty path is loaded: that is how the node lets go of its image.
void ZPainterBrush::loadFile(std::string_view key, QString const& path) {
    nyxBrush_param* const record = nodes_.find(key);
    nyxScene_api* const scene = rtApi_ ? nyx_get_scene_api(rtApi_->scene()) : nullptr;
    if (record && scene) {
        scene->load_brush_file(*record, path.toUtf8().constData());
    }
}

nyxBrush_node* ZPainterBrush::brushNode() const { return root_; }

QString ZPainterBrush::stencilFilePath() const {
    return parameter(QStringLiteral("basic_stencil_filepath")).value<QString>().value_or(QString());
}

float ZPainterBrush::rotation() const {
    return parameter(QStringLiteral("basic_rotation")).value<float>().value_or(0.0f);
}

QList<Parameter> ZPainterBrush::parameters() const { return parameters_.values(); }

nyx::MaterialId ZPainterBrush::materialId() const { return material_; }

} // namespace zsg
