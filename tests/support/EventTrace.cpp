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

template <class E>
E const& as(Event const& event) {
    return static_cast<E const&>(event);
}

std::string payload(Event const& event) {
    switch (event.type()) {
    case EventType::MaterialUpdated:
        return text(as<MaterialUpdatedEvent>(event).materialId());
    case EventType::MaterialDescriptionChanged:
        return text(as<MaterialDescriptionChangedEvent>(event).materialId());
    case EventType::ShaderNodeChanged: {
        auto const& changed = as<ShaderNodeChangedEvent>(event);
        return text(changed.materialId()) + text(changed.shaderNodeId());
    }
    case EventType::PaintLayersUpdated:
        return text(as<PaintLayersUpdatedEvent>(event).surfaceId());
    case EventType::ViewportToolStarted: {
        auto const tool = as<ViewportToolStartedEvent>(event).toolType();
        return ' ' + std::to_string(static_cast<std::uint32_t>(tool));
    }
    case EventType::ColorCreated:
        return text(as<ColorEvent>(event).colorId());
    case EventType::ColorIdChange: {
        auto const& change = as<ColorIdChangeEvent>(event);
        return text(change.oldId()) + text(change.newId());
    }
    case EventType::ColorUpdated:
        return text(as<ColorUpdatedEvent>(event).colorId());
    case EventType::ColorSynced:
        return text(as<ColorSyncedEvent>(event).colorId());
    case EventType::ColorwaySynced:
        return text(as<ColorwaySyncedEvent>(event).colorwayId());
    case EventType::ColorwayUpdated:
        return text(as<ColorwayUpdatedEvent>(event).colorwayId());
    case EventType::LightLayerUpdated:
        return text(as<LightLayerUpdatedEvent>(event).lightLayerId());
    case EventType::CMFSchemaChanged:
    case EventType::LightLayerSynced:
        break;
    }
    return {};
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

std::string EventTrace::line(Event const& event) { return name(event.type()) + payload(event); }
