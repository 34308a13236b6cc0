#pragma once

#include "zsg/Export.h"

#include <array>
#include <cstdint>

namespace zsg {

/// The kind of an event: named as the event's class, without "Event"; ColorEvent is ColorCreated.
/// The numbers are part of the interface.
enum class EventType : std::uint32_t {
    MaterialUpdated = 0,
    MaterialDescriptionChanged = 1,
    ShaderNodeChanged = 2,
    CMFSchemaChanged = 3,
    PaintLayersUpdated = 4,
    ViewportToolStarted = 5,
    ColorCreated = 6,
    ColorIdChange = 7,
    ColorUpdated = 8,
    ColorSynced = 9,
    ColorwaySynced = 10,
    ColorwayUpdated = 11,
    LightLayerUpdated = 12,
    LightLayerSynced = 13,
};

/// Every kind, in the order of the numbers: the first has number 0, and none is left out.
inline constexpr std::array allEventTypes{
    EventType::MaterialUpdated,    EventType::MaterialDescriptionChanged,
    EventType::ShaderNodeChanged,  EventType::CMFSchemaChanged,
    EventType::PaintLayersUpdated, EventType::ViewportToolStarted,
    EventType::ColorCreated,       EventType::ColorIdChange,
    EventType::ColorUpdated,       EventType::ColorSynced,
    EventType::ColorwaySynced,     EventType::ColorwayUpdated,
    EventType::LightLayerUpdated,  EventType::LightLayerSynced,
};

/// A name for messages, static and never null. The light-layer kinds have none: they and every
/// number that is no kind at all give "Unknown event type". Any thread.
[[nodiscard]] ZSG_EXPORT char const* eventTypeString(EventType type) noexcept;

/// The same, but for the light-layer kinds "LightLayerUpdated" and "LightLayerSynced": for readers
/// who would tell them apart. Static and never null. Any thread.
[[nodiscard]] ZSG_EXPORT char const* eventKindText(EventType type) noexcept;

} // namespace zsg
