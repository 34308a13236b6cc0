#pragma once

#include <nlohmann/json_fwd.hpp>

namespace zsg {
class AnimationCurve;
class ColorGradient;
class Parameter;
class Variant;
class WeavePattern;
} // namespace zsg

namespace app {

/// Adds what a holder or a parameter holds as "value": numbers, texts and truths as themselves,
/// vectors, lists and matrices (row after row) as arrays, an AxaltaColor as an array of its three
/// colors, a color with "srgb" and "linear", the other types as below. A choice gets its id as
/// "value", and "choices". Nothing for a type or a parameter without a value.
void addValue(nlohmann::ordered_json& result, zsg::Variant const& holder);
void addValue(nlohmann::ordered_json& result, zsg::Parameter const& parameter);

/// As a weave file has it.
[[nodiscard]] nlohmann::ordered_json valueResult(zsg::WeavePattern const& weave);
/// "blend", and "stops" with location, color and slopes.
[[nodiscard]] nlohmann::ordered_json valueResult(zsg::ColorGradient const& gradient);
/// Each key with the letter of its type, and the points in, pos and out.
[[nodiscard]] nlohmann::ordered_json valueResult(zsg::AnimationCurve const& curve);

} // namespace app
