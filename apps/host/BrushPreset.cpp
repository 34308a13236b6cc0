#include "host/BrushPreset.h"

#include "host/parseJson.h"
#include "zsg/painting/IPainterBrush.h"
#include "zsg/values/Enumerable.h"

#include "nyxrender/nyxShader.h"

#include <QDir>
#include <QFileInfo>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <map>
#include <optional>

namespace app {

namespace {

using Json = nlohmann::json;
using zsg::Parameter;
using zsg::Type;

constexpr int version = 1;

/// What applyToNode() writes itself.
constexpr std::array<std::string_view, 5> workedOut = {"basic_flow_value", "basic_hardness",
                                                       "basic_opacity", "basic_pen_pressure_mode",
                                                       "color_selection"};

/// With the fewest digits that make the same float.
Json numberOf(float value) {
    double const shortest = QString::number(value, 'g', 6).toDouble();
    return static_cast<float>(shortest) == value ? shortest : static_cast<double>(value);
}

Json valueOf(Parameter const& p, QDir const& folder) {
    switch (p.type()) {
    case Type::Boolean:
        return *p.value<bool>();
    case Type::Integer:
        return *p.value<int>();
    case Type::Float:
        return numberOf(*p.value<float>());
    case Type::Enumerable:
        return p.value<zsg::Enumerable>()->getSelection();
    case Type::Color: {
        nyxColor_rgba const c = p.getColor().rgba();
        return {numberOf(c.r), numberOf(c.g), numberOf(c.b)};
    }
    case Type::String: {
        QString const path = *p.value<QString>();
        QString const relative = path.isEmpty() ? path : folder.relativeFilePath(path);
        return (relative.startsWith("..") ? path : relative).toStdString();
    }
    default:
        return nullptr;
    }
}

[[noreturn]] void refuse(std::string const& key, std::string const& why) {
    throw CommandError("\"" + key + "\" " + why);
}

void checkLimits(std::string const& key, Parameter const& p, float number) {
    float low = std::numeric_limits<float>::lowest();
    float high = std::numeric_limits<float>::max();
    (void)p.limits(low, high);
    if (!(number >= low && number <= high)) {
        refuse(key, "is not between " + numberOf(low).dump() + " and " + numberOf(high).dump());
    }
}

void checkFinite(std::string const& key, nyxColor_rgba const& color) {
    if (!std::isfinite(color.r) || !std::isfinite(color.g) || !std::isfinite(color.b)) {
        refuse(key, "has a component that is no finite number");
    }
}

/// What is written must be possible to read.
void checkWritable(std::string const& key, Parameter const& p) {
    if (p.type() == Type::Float) {
        checkLimits(key, p, *p.value<float>());
    } else if (p.type() == Type::Color) {
        checkFinite(key, p.getColor().rgba());
    }
}

float takeFloat(std::string const& key, Json const& value) {
    if (!value.is_number()) {
        refuse(key, "is not a number");
    }
    return value.get<float>();
}

int takeInt(std::string const& key, Json const& value) {
    if (!value.is_number_integer() ||
        value.get<double>() != static_cast<double>(value.get<std::int32_t>())) {
        refuse(key, "is not a whole number");
    }
    return value.get<int>();
}

void setValue(std::string const& key, Parameter p, Json const& value, QDir const& folder) {
    switch (p.type()) {
    case Type::Boolean:
        if (!value.is_boolean()) {
            refuse(key, "is neither true nor false");
        }
        p.setValue(value.get<bool>());
        break;
    case Type::Integer:
        p.setValue(takeInt(key, value));
        break;
    case Type::Float: {
        float const number = takeFloat(key, value);
        checkLimits(key, p, number);
        p.setValue(number);
        break;
    }
    case Type::Enumerable: {
        zsg::Enumerable choice = *p.value<zsg::Enumerable>();
        int const id = takeInt(key, value);
        if (std::ranges::none_of(choice, [id](auto const& option) { return option.first == id; })) {
            refuse(key, "is none of the choices");
        }
        choice.setSelection(id);
        p.setValue(choice);
        break;
    }
    case Type::Color: {
        if (!value.is_array() || value.size() != 3) {
            refuse(key, "is not [red, green, blue]");
        }
        nyxColor_rgba const color{takeFloat(key, value[0]), takeFloat(key, value[1]),
                                  takeFloat(key, value[2]), 1};
        checkFinite(key, color);
        p.setColor(ZColorExt(color.r, color.g, color.b));
        break;
    }
    case Type::String: {
        if (!value.is_string()) {
            refuse(key, "is not a text");
        }
        QString const path = QString::fromStdString(value.get<std::string>());
        p.setValue(path.isEmpty() ? path : QDir::cleanPath(folder.filePath(path)));
        break;
    }
    default:
        refuse(key, "cannot be set from a file");
    }
}

} // namespace

bool isBrushSetting(Parameter const& parameter) {
    return parameter.type() != Type::ShaderBase &&
           std::ranges::find(workedOut, parameter.name().toStdString()) == workedOut.end();
}

std::string brushPreset(zsg::IPainterBrush const& brush, std::string const& folder) {
    QDir const from(QString::fromStdString(folder));
    Json parameters = Json::object(); // in the order of the names
    for (Parameter const& parameter : brush.parameters()) {
        if (isBrushSetting(parameter)) {
            std::string const key = parameter.name().toStdString();
            checkWritable(key, parameter);
            parameters[key] = valueOf(parameter, from);
        }
    }
    nlohmann::ordered_json preset;
    preset["version"] = version;
    preset["parameters"] = parameters;
    // Bytes that are no UTF-8 cannot come from a QString, so nothing is replaced.
    return preset.dump(2) + '\n';
}

void setBrushPreset(zsg::IPainterBrush& brush, std::string const& text, std::string const& folder) {
    Json const preset = parseJson<Json>(text);
    if (preset.is_discarded() || !preset.is_object()) {
        throw CommandError("not a JSON object");
    }
    if (preset.value("version", Json()) != Json(version)) {
        throw CommandError("\"version\" is not 1");
    }
    auto const parameters = preset.find("parameters");
    if (parameters == preset.end() || !parameters->is_object() || preset.size() != 2) {
        throw CommandError("\"version\" and \"parameters\", an object, are expected");
    }
    for (auto const& [key, value] : parameters->items()) {
        Parameter const parameter = brush.parameter(QString::fromStdString(key));
        if (!parameter.isValid()) {
            refuse(key, "is no parameter of the brush");
        }
        setValue(key, parameter, value, QDir(QString::fromStdString(folder)));
    }
}

} // namespace app
