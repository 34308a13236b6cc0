#include "zsg/core/EventType.h"

#include <array>

namespace zsg {

char const* eventTypeString(EventType type) noexcept {
    // The spelling is what logs and scripts already know, irregular as it is; that the light-layer
    // kinds are missing is deliberate.
    static constexpr std::array names{
        "MaterialUpdated",    "MaterialDescriptionChanged",
        "ShaderNodeChanged",  "CMFSchemaChanged",
        "PaintLayersUpdated", "ViewportToolStarted",
        "ColorCreated",       "ColorIdChangeEvent",
        "ColorUpdated",       "ColorSynced",
        "ColorwaySynced",     "ColorWayUpdated",
    };
    auto const index = static_cast<std::uint32_t>(type);
    return index < names.size() ? names[index] : "Unknown event type";
}

char const* eventKindText(EventType type) noexcept {
    switch (type) {
    case EventType::LightLayerUpdated:
        return "LightLayerUpdated";
    case EventType::LightLayerSynced:
        return "LightLayerSynced";
    default:
        return eventTypeString(type);
    }
}

} // namespace zsg
