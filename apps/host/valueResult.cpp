#include "host/valueResult.h"

#include "host/sRGB.h"
#include "zsg/values/AnimationCurve.h"
#include "zsg/values/ColorGradient.h"
#include "zsg/values/Parameter.h"
#include "zsg/values/ValueVariant.h"
#include "zsg/values/WeavePattern.h"

#include "nyxrender/nyxArray.h"
#include "zcore/ZColorExt.h"
#include "zcore/ZColorExtAlpha.h"

#include <nlohmann/json.hpp>

#include <string>
#include <type_traits>

namespace app {

namespace {

using Json = nlohmann::ordered_json;
using zsg::Type;

Json of(nyxColor_rgba const& c) {
    return {{"srgb", hexColorWithAlpha(c)}, {"linear", {c.r, c.g, c.b, c.a}}};
}
Json of(nyxColor const& c) { return of(nyxColor_rgba{c.r, c.g, c.b, 1}); }
Json of(QString const& text) { return text.toStdString(); }
Json of(zsg::FilePath const& path) { return of(path.toString()); }
Json of(nyxVector2f const& v) { return {v.x, v.y}; }
Json of(nyxVectorf const& v) { return {v.x, v.y, v.z}; }
Json of(nyxVector const& v) { return {v.x, v.y, v.z}; }
Json of(nyxMatrix const& matrix) { return matrix.m; }
Json of(ZColorExt const& color) { return of(color.rgba()); }
Json of(zsg::AxaltaColor const& c) { return {of(c.getA()), of(c.getB()), of(c.getC())}; }
Json of(zsg::WeavePattern const& weave) { return valueResult(weave); }
Json of(zsg::ColorGradient const& gradient) { return valueResult(gradient); }
Json of(zsg::AnimationCurve const& curve) { return valueResult(curve); }
Json of(zsg::Enumerable const& choice) { return choice.getSelection(); }

template <class T>
requires std::is_arithmetic_v<T> Json of(T number) { return number; }

template <class T>
Json of(QList<T> const& list) {
    Json result = Json::array();
    for (T const& element : list) {
        result.push_back(of(element));
    }
    return result;
}

template <class T>
void add(Json& result, T const& value) {
    result["value"] = of(value);
    if constexpr (std::is_same_v<T, zsg::Enumerable>) {
        Json& choices = result["choices"] = Json::array();
        for (auto const& [id, label] : value) {
            choices.push_back({{"id", id}, {"label", label.toStdString()}});
        }
    }
}

} // namespace

void addValue(Json& result, zsg::Variant const& holder) {
    switch (holder.type()) {
#define APP_ADD(member, number, T)                                                                 \
    case Type::member:                                                                             \
        return add(result, *zsg::tryGet<T>(holder));
        ZSG_VALUE_TYPES(APP_ADD)
#undef APP_ADD
    default:
        break;
    }
}

void addValue(Json& result, zsg::Parameter const& parameter) {
    if (!parameter.isValid() || parameter.isPure()) {
        return;
    }
    switch (parameter.type()) {
#define APP_ADD(member, number, T)                                                                 \
    case Type::member:                                                                             \
        return add(result, *parameter.value<T>());
        ZSG_VALUE_TYPES(APP_ADD)
#undef APP_ADD
    default:
        break;
    }
}

Json valueResult(zsg::WeavePattern const& weave) {
    return Json::parse(weave.toJson().toStdString());
}

Json valueResult(zsg::ColorGradient const& gradient) {
    Json stops = Json::array();
    for (zsg::ColorGradientStop const& stop : gradient.getStops()) {
        Json shown = {{"location", stop.getLocation()}};
        shown.update(of(stop.getColor()));
        shown["slopes"] = {stop.getSlopeLeft(), stop.getSlopeRight()};
        stops.push_back(shown);
    }
    return {{"blend", gradient.blend()}, {"stops", stops}};
}

Json valueResult(zsg::AnimationCurve const& curve) {
    nyxArray<float> data;
    std::string types;
    curve.store(data, types);
    Json keys = Json::array();
    for (std::size_t i = 0; i < types.size(); ++i) {
        float const* const f = data.data() + 6 * i;
        keys.push_back({{"type", std::string(1, types[i])},
                        {"in", {f[0], f[1]}},
                        {"pos", {f[2], f[3]}},
                        {"out", {f[4], f[5]}}});
    }
    return keys;
}

} // namespace app
