#pragma once

#include "host/Arguments.h"

#include <nlohmann/json.hpp>

#include <string>
#include <string_view>

namespace app {

/// Reads JSON that comes from outside. Throws CommandError "bad-json" when it is nested deeper than
/// 64, because copying, writing and comparing a value go as deep. A text that is no JSON gives a
/// discarded value, or throws when asked to: nlohmann::json::parse_error, or CommandError for a
/// zero byte, behind which the parser would not look.
template <class Json>
[[nodiscard]] Json parseJson(std::string_view text, bool throws = false) {
    if (text.find('\0') != std::string_view::npos) {
        if (throws) {
            throw CommandError("holds a zero byte", "bad-json");
        }
        return Json(Json::value_t::discarded);
    }
    auto const checkDepth = [](int depth, typename Json::parse_event_t, Json&) {
        constexpr int deepest = 64;
        if (depth > deepest) {
            throw CommandError("nested deeper than " + std::to_string(deepest), "bad-json");
        }
        return true;
    };
    return Json::parse(text, checkDepth, throws);
}

} // namespace app
