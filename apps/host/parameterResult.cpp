#include "host/parameterResult.h"

#include "host/valueResult.h"
#include "zsg/values/Parameter.h"

#include <nlohmann/json.hpp>

namespace app {

namespace {

using Json = nlohmann::ordered_json;

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

} // namespace

Json parameterResult(zsg::Parameter const& p) {
    Json result = {{"name", p.name().toStdString()},
                   {"label", p.displayName().toStdString()},
                   {"type", zsg::typeName(p.type())},
                   {"quantity", quantityName(p.quantity())},
                   {"valid", p.isValid()},
                   {"enabled", p.isEnabled()}};
    addValue(result, p);
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
