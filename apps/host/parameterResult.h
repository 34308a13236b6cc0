#pragma once

#include <nlohmann/json_fwd.hpp>

namespace zsg {
class Parameter;
}

namespace app {

/// A parameter as data: name, label, type, quantity, whether it is valid and enabled, value, and
/// limits, slider, choices and toolTip where it has them. Numbers, texts and truths are themselves,
/// colours "#rrggbb[aa]" in sRGB, choices their id; other values are left out.
[[nodiscard]] nlohmann::ordered_json parameterResult(zsg::Parameter const& parameter);

} // namespace app
