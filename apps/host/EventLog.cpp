#include "host/EventLog.h"

#include "zsg/core/Events.h"
#include "zsg/core/IEventQueue.h"

namespace app {

namespace {

constexpr int eventTypes = 14;

template <class EventClass>
EventClass const& as(zsg::Event const& event) {
    return static_cast<EventClass const&>(event);
}

std::string payload(zsg::Event const& event) {
    auto const text = [](auto id) {
        return id.isValid() ? std::to_string(id.toUint()) : std::string("invalid");
    };
    using zsg::EventType;
    switch (event.type()) {
    case EventType::MaterialUpdated:
        return text(as<zsg::MaterialUpdatedEvent>(event).materialId());
    case EventType::MaterialDescriptionChanged:
        return text(as<zsg::MaterialDescriptionChangedEvent>(event).materialId());
    case EventType::ShaderNodeChanged:
        return text(as<zsg::ShaderNodeChangedEvent>(event).materialId()) + ' ' +
               text(as<zsg::ShaderNodeChangedEvent>(event).shaderNodeId());
    case EventType::PaintLayersUpdated:
        return text(as<zsg::PaintLayersUpdatedEvent>(event).surfaceId());
    case EventType::ViewportToolStarted:
        return std::to_string(
            static_cast<int>(as<zsg::ViewportToolStartedEvent>(event).toolType()));
    case EventType::ColorCreated:
        return text(as<zsg::ColorEvent>(event).colorId());
    case EventType::ColorIdChange:
        return text(as<zsg::ColorIdChangeEvent>(event).oldId()) + ' ' +
               text(as<zsg::ColorIdChangeEvent>(event).newId());
    case EventType::ColorUpdated:
        return text(as<zsg::ColorUpdatedEvent>(event).colorId());
    case EventType::ColorSynced:
        return text(as<zsg::ColorSyncedEvent>(event).colorId());
    case EventType::ColorwaySynced:
        return text(as<zsg::ColorwaySyncedEvent>(event).colorwayId());
    case EventType::ColorwayUpdated:
        return text(as<zsg::ColorwayUpdatedEvent>(event).colorwayId());
    case EventType::LightLayerUpdated:
        return text(as<zsg::LightLayerUpdatedEvent>(event).lightLayerId());
    case EventType::CMFSchemaChanged:
    case EventType::LightLayerSynced:
        break;
    }
    return {};
}

} // namespace

EventLog::EventLog(zsg::IEventQueue& queue, std::function<void(Entry const&)> onEntry)
    : onEntry_(std::move(onEntry)) {
    subscription_.emplace(queue, *this, std::initializer_list<zsg::EventType>{});
    for (int type = 0; type < eventTypes; ++type) {
        queue.subscribe(this, static_cast<zsg::EventType>(type));
    }
}

void EventLog::onEvent(zsg::Event const* event) {
    entries_.push_back({event->eventId(), static_cast<int>(event->type()),
                        zsg::eventTypeString(event->type()), payload(*event)});
    onEntry_(entries_.back());
}

} // namespace app
