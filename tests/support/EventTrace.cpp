#include "support/EventTrace.h"

#include "zsg/core/Events.h"

#include <utility>

using namespace zsg;

namespace {

constexpr std::initializer_list<EventType> everyType{
    EventType::MaterialUpdated,    EventType::MaterialDescriptionChanged,
    EventType::ShaderNodeChanged,  EventType::CMFSchemaChanged,
    EventType::PaintLayersUpdated, EventType::ViewportToolStarted,
    EventType::ColorCreated,       EventType::ColorIdChange,
    EventType::ColorUpdated,       EventType::ColorSynced,
    EventType::ColorwaySynced,     EventType::ColorwayUpdated,
    EventType::LightLayerUpdated,  EventType::LightLayerSynced,
};

template <class Id>
std::string text(Id id) {
    return id.isValid() ? ' ' + std::to_string(id.toUint()) : std::string(" invalid");
}

std::string text(ViewportToolStartedEvent::ToolType tool) {
    return ' ' + std::to_string(static_cast<std::uint32_t>(tool));
}

/// What an event of class E carries; empty for others.
template <class E, class Value>
std::string of(Event const& event, Value (E::*get)() const noexcept) {
    auto const* const given = dynamic_cast<E const*>(&event);
    return given ? text((given->*get)()) : std::string();
}

std::string name(EventType type) {
    switch (type) {
    case EventType::LightLayerUpdated:
        return "LightLayerUpdated";
    case EventType::LightLayerSynced:
        return "LightLayerSynced";
    default:
        return eventTypeString(type);
    }
}

} // namespace

EventTrace::EventTrace(IEventQueue& queue) : subscription_(queue, *this, everyType) {}

EventTrace::EventTrace(IEventQueue& queue, std::initializer_list<EventType> types)
    : subscription_(queue, *this, types) {}

void EventTrace::onEvent(Event const* event) {
    if (!lines_.empty()) {
        lines_ += '\n';
    }
    lines_ += line(*event);
}

std::string EventTrace::take() { return std::exchange(lines_, {}); }

std::string EventTrace::line(Event const& event) {
    return name(event.type()) + of(event, &MaterialUpdatedEvent::materialId) +
           of(event, &MaterialDescriptionChangedEvent::materialId) +
           of(event, &ShaderNodeChangedEvent::materialId) +
           of(event, &ShaderNodeChangedEvent::shaderNodeId) +
           of(event, &PaintLayersUpdatedEvent::surfaceId) +
           of(event, &ViewportToolStartedEvent::toolType) + of(event, &ColorEvent::colorId) +
           of(event, &ColorIdChangeEvent::oldId) + of(event, &ColorIdChangeEvent::newId) +
           of(event, &ColorUpdatedEvent::colorId) + of(event, &ColorSyncedEvent::colorId) +
           of(event, &ColorwaySyncedEvent::colorwayId) +
           of(event, &ColorwayUpdatedEvent::colorwayId) +
           of(event, &LightLayerUpdatedEvent::lightLayerId);
}
