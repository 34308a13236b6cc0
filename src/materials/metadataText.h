#pragma once

#include <nlohmann/json.hpp>

#include <string>
#include <string_view>

namespace zsg {

/// The value of a metadata text; null for an empty one. `readable` becomes false, and the value
/// null, when the text is no JSON or is nested more than 512 deep: copying and comparing JSON
/// values takes stack by their depth.
[[nodiscard]] nlohmann::json metadataFromText(std::string_view text, bool& readable);

/// The text of a metadata value, empty for null. Throws nlohmann::json::type_error when a string in
/// it is no valid UTF-8.
[[nodiscard]] std::string metadataToText(nlohmann::json const& metadata);

} // namespace zsg
