#include "materials/metadataText.h"

namespace zsg {

namespace {

constexpr int deepest = 512;

struct TooDeep {};

} // namespace

nlohmann::json metadataFromText(std::string_view text, bool& readable) {
    readable = true;
    if (text.empty()) {
        return nullptr;
    }
    using Event = nlohmann::json::parse_event_t;
    auto const checkDepth = [](int depth, Event event, nlohmann::json&) {
        // What begins says the depth around it.
        bool const begins = event == Event::object_start || event == Event::array_start;
        if (depth + (begins ? 1 : 0) > deepest) {
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
