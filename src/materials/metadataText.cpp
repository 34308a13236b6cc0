#include "materials/metadataText.h"

#include <utility>
#include <vector>

namespace zsg {

namespace {

struct TooDeep {};

} // namespace

bool isNestedDeeper(nlohmann::json const& value, int depth) {
    // With a stack of its own: the value may be deeper than calls may.
    std::vector<std::pair<nlohmann::json const*, int>> waiting{{&value, 1}};
    while (!waiting.empty()) {
        auto const [next, level] = waiting.back();
        waiting.pop_back();
        if (!next->is_structured()) {
            continue;
        }
        if (level > depth) {
            return true;
        }
        for (nlohmann::json const& element : *next) {
            waiting.emplace_back(&element, level + 1);
        }
    }
    return false;
}

nlohmann::json metadataFromText(std::string_view text, bool& readable) {
    readable = true;
    if (text.empty()) {
        return nullptr;
    }
    using Event = nlohmann::json::parse_event_t;
    auto const checkDepth = [](int depth, Event event, nlohmann::json&) {
        // What begins says the depth around it.
        bool const begins = event == Event::object_start || event == Event::array_start;
        if (depth + (begins ? 1 : 0) > deepestMetadata) {
            throw TooDeep();
        }
        return true;
    };
    try {
        return nlohmann::json::parse(text, checkDepth);
    } catch (nlohmann::json::exception const&) {
    } catch (TooDeep const&) {}
    readable = false;
    return nullptr;
}

std::string metadataToText(nlohmann::json const& metadata) {
    return metadata.is_null() ? std::string() : metadata.dump();
}

} // namespace zsg
