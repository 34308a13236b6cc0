#include "zsg/core/eventPayloadText.h"

#include "zsg/core/Events.h"

namespace zsg {

namespace {

template <class Id>
std::string text(Id id) {
    return id.isValid() ? std::to_string(id.toUint()) : "invalid";
}

template <class EventClass>
EventClass const& as(Event const& event) {
    return static_cast<EventClass const&>(event);
}

} // namespace

std::string eventPayloadText(Event const& event) {
    switch (event.type()) {
    case EventType::MaterialUpdated:
        return text(as<MaterialUpdatedEvent>(event).materialId());
    case EventType::MaterialDescriptionChanged:
        return text(as<MaterialDescriptionChangedEvent>(event).materialId());
    case EventType::ShaderNodeChanged:
        return text(as<ShaderNodeChangedEvent>(event).materialId()) + ' ' +
               text(as<ShaderNodeChangedEvent>(event).shaderNodeId());
    case EventType::PaintLayersUpdated:
        return text(as<PaintLayersUpdatedEvent>(event).surfaceId());
    case EventType::ViewportToolStarted:
        return std::to_string(
            static_cast<std::uint32_t>(as<ViewportToolStartedEvent>(event).toolType()));
    case EventType::ColorCreated:
        return text(as<ColorEvent>(event).colorId());
    case EventType::ColorIdChange:
        return text(as<ColorIdChangeEvent>(event).oldId()) + ' ' +
               text(as<ColorIdChangeEvent>(event).newId());
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

} // namespace zsg
