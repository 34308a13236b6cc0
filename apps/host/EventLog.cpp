#include "host/EventLog.h"

#include "zsg/core/Event.h"
#include "zsg/core/IEventQueue.h"
#include "zsg/core/eventPayloadText.h"

namespace app {

EventLog::EventLog(zsg::IEventQueue& queue, std::function<void(Entry const&)> onEntry)
    : onEntry_(std::move(onEntry)) {
    subscription_.emplace(queue, *this, std::initializer_list<zsg::EventType>{});
    for (zsg::EventType const type : zsg::allEventTypes) {
        queue.subscribe(this, type);
    }
}

void EventLog::onEvent(zsg::Event const* event) {
    entries_.push_back({event->eventId(), static_cast<int>(event->type()),
                        zsg::eventKindText(event->type()), zsg::eventPayloadText(*event)});
    onEntry_(entries_.back());
}

} // namespace app
