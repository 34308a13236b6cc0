#include "workbench/events/EventRecorder.h"

#include "zsg/core/Event.h"
#include "zsg/core/IEventQueue.h"
#include "zsg/core/eventPayloadText.h"

#include <QDateTime>

#include <utility>

namespace workbench {

EventRecorder::EventRecorder(zsg::IEventQueue& queue, std::function<void()> onFirst)
    : onFirst_(std::move(onFirst)), subscription_(queue, *this, {}) {
    for (zsg::EventType const type : zsg::allEventTypes) {
        queue.subscribe(this, type);
    }
}

void EventRecorder::onEvent(zsg::Event const* event) {
    bool const isFirst = taken_.events.empty();
    // Not eventTypeString(), which has no names for the kinds of light layers.
    taken_.events.push_back({event->eventId(), QString::fromUtf8(zsg::eventKindText(event->type())),
                             QString::fromStdString(zsg::eventPayloadText(*event)),
                             QDateTime::currentMSecsSinceEpoch()});
    if (taken_.events.size() > mostKept) {
        taken_.events.pop_front();
        ++taken_.dropped;
    }
    if (isFirst) {
        onFirst_();
    }
}

EventRecorder::Taken EventRecorder::take() { return std::exchange(taken_, {}); }

} // namespace workbench
