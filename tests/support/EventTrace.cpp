#include "support/EventTrace.h"

#include "zsg/core/Event.h"
#include "zsg/core/eventPayloadText.h"

#include <utility>

using namespace zsg;

EventTrace::EventTrace(IEventQueue& queue) : EventTrace(queue, {}) {
    for (EventType const type : allEventTypes) {
        queue.subscribe(this, type);
    }
}

EventTrace::EventTrace(IEventQueue& queue, std::initializer_list<EventType> types)
    : subscription_(queue, *this, types) {}

void EventTrace::onEvent(Event const* event) {
    if (!lines_.empty()) {
        lines_ += '\n';
    }
    lines_ += line(*event);
    if (reaction) {
        reaction();
    }
}

std::string EventTrace::take() { return std::exchange(lines_, {}); }

std::string EventTrace::line(Event const& event) {
    std::string const payload = eventPayloadText(event);
    return eventKindText(event.type()) + std::string(payload.empty() ? "" : " ") + payload;
}
