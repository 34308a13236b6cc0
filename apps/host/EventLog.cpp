#include "host/EventLog.h"

#include "zsg/core/Event.h"
#include "zsg/core/IEventQueue.h"
#include "zsg/core/eventPayloadText.h"

namespace app {

namespace {

/// The library has no texts for two kinds, which a reader would like to tell apart.
std::string typeTextOf(zsg::EventType type) {
    switch (type) {
    case zsg::EventType::LightLayerUpdated:
        return "LightLayerUpdated";
    case zsg::EventType::LightLayerSynced:
        return "LightLayerSynced";
    default:
        return zsg::eventTypeString(type);
    }
}

} // namespace

EventLog::EventLog(zsg::IEventQueue& queue, std::function<void(Entry const&)> onEntry)
    : onEntry_(std::move(onEntry)) {
    subscription_.emplace(queue, *this, std::initializer_list<zsg::EventType>{});
    for (zsg::EventType const type : zsg::allEventTypes) {
        queue.subscribe(this, type);
    }
}

void EventLog::onEvent(zsg::Event const* event) {
    entries_.push_back({event->eventId(), static_cast<int>(event->type()),
                        typeTextOf(event->type()), zsg::eventPayloadText(*event)});
    onEntry_(entries_.back());
}

} // namespace app
