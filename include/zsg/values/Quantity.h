#pragma once

#include <cstdint>

namespace zsg {

/// The kind of unit that a parameter's value is shown in. Only stored here; other numbers pass
/// through.
enum class Quantity : std::int32_t {
    None = 0,
    WorldLength = 1,
    Angle = 5,
    Pixels = 6,
    Percent = 7,
};

} // namespace zsg
