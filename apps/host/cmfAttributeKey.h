#pragma once

#include <string>

namespace app {

/// The key under which these programs keep a CMF attribute's value: the field's for the attributes
/// of the built-in schema, and its own name for others.
[[nodiscard]] std::string cmfAttributeKey(std::string const& attribute);

} // namespace app
