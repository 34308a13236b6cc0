#pragma once

#include <nlohmann/json_fwd.hpp>

namespace zsg {
class Parameter;
}

namespace app {

/// A parameter as data: name, label, type, quantity, whether it is valid and enabled, value as
/// addValue() has it, and limits, slider and toolTip where it has them.
[[nodiscard]] nlohmann::ordered_json parameterResult(zsg::Parameter const& parameter);

} // namespace app
