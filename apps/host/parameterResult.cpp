#include "host/parameterResult.h"

#include "host/sRGB.h"
#include "zsg/values/Enumerable.h"
#include "zsg/values/Parameter.h"
#include "zsg/values/ValueVariant.h"

#include "zcore/ZColorExt.h"

#include <nlohmann/json.hpp>

namespace app {

namespace {

using Json = nlohmann::ordered_json;
using zsg::Type;

char const* quantityName(zsg::Quantity quantity) {
    switch (quantity) {
    case zsg::Quantity::WorldLength:
        return "length";
    case zsg::Quantity::Angle:
        return "angle";
    case zsg::Quantity::Pixels:
        return "pixels";
    case zsg::Quantity::Percent:
        return "percent";
    default:
        return "none";
    }
}

void addChoice(Json& result, zsg::Enumerable const& choice) {
    result["value"] = choice.getSelection();
    Json& choices = result["choices"] = Json::array();
    for (auto const& [id, label] : choice) {
        choices.push_back({{"id", id}, {"label", label.toStdString()}});
    }
}

void addValue(Json& result, zsg::Parameter const& p) {
    switch (p.type()) {
    case Type::Boolean:
        result["value"] = *p.value<bool>();
        break;
    case Type::Integer:
        result["value"] = *p.value<int>();
        break;
    case Type::Float:
        result["value"] = *p.value<float>();
        break;
    case Type::Double:
        result["value"] = *p.value<double>();
        break;
    case Type::String:
        result["value"] = p.value<QString>()->toStdString();
        break;
    case Type::Color:
    case Type::ColorAlpha:
        result["value"] = hexColorWithAlpha(p.getColor().rgba());
        break;
    case Type::Enumerable:
        addChoice(result, *p.value<zsg::Enumerable>());
        break;
    default:
        break;
    }
}

} // namespace

Json parameterResult(zsg::Parameter const& p) {
    Json result = {{"name", p.name().toStdString()},
                   {"label", p.displayName().toStdString()},
                   {"type", zsg::typeName(p.type())},
                   {"quantity", quantityName(p.quantity())},
                   {"valid", p.isValid()},
                   {"enabled", p.isEnabled()}};
    if (p.isValid() && !p.isPure()) {
        addValue(result, p);
    }
    float low = 0;
    float high = 0;
    int lowest = 0;
    int highest = 0;
    if (p.limits(lowest, highest)) {
        result["limits"] = {lowest, highest};
    } else if (p.limits(low, high)) {
        result["limits"] = {low, high};
    }
    if (p.sliderRange(low, high)) {
        result["slider"] = {low, high};
    }
    if (!p.toolTip().isEmpty()) {
        result["toolTip"] = p.toolTip().toStdString();
    }
    return result;
}

} // namespace app
