#pragma once

#include <nlohmann/json.hpp>

#include <string>
#include <string_view>

namespace zsg {

/// Metadata is nested 512 deep at the most: copying, comparing and writing JSON values takes stack
/// by their depth.
constexpr int deepestMetadata = 512;

/// Whether arrays and objects stand deeper in each other than that many.
[[nodiscard]] bool isNestedDeeper(nlohmann::json const& value, int depth);

/// The value of a metadata text; null for an empty one. `readable` becomes false, and the value
/// null, when the text is no JSON or is nested too deeply.
[[nodiscard]] nlohmann::json metadataFromText(std::string_view text, bool& readable);

/// The text of a metadata value, empty for null. Throws nlohmann::json::type_error when a string in
/// it is no valid UTF-8.
[[nodiscard]] std::string metadataToText(nlohmann::json const& metadata);

} // namespace zsg
