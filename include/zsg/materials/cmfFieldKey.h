#pragma once

#include "zsg/Export.h"

#include <string>

namespace zsg {

/// The number of the fields that every material can have whatever the schema says. They are
/// numbered from 0: name, color, material, finish, vendor, notes, thumbnail. This is not the order
/// of the built-in schema, which lists the finish before the material.
inline constexpr int cmfFieldCount = 7;

/// The key under which a material stores a field, such as "CMF::TEXT::NAME" for field 0. A number
/// outside 0 to 6 is a programming error and throws std::out_of_range. Any thread.
[[nodiscard]] ZSG_EXPORT std::string const& cmfFieldKey(int field);

} // namespace zsg
