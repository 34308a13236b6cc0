#pragma once

#include "values/WeavePatternData.h"

#include <QString>

#include <optional>

namespace zsg {

/// What a JSON text says about a pattern.
struct WeaveText {
    WeaveGrid grid;
    std::optional<WeaveYarns> yarns; ///< only when all four of their members have two elements
};

[[nodiscard]] QString weaveToJson(WeaveGrid const& grid, WeaveYarns const& yarns);

/// Nothing when the text is empty or describes no grid. Throws nlohmann::json::exception.
[[nodiscard]] std::optional<WeaveText> weaveFromJson(QString const& text);

} // namespace zsg
