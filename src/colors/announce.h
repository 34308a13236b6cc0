#pragma once

#include "core/postEvent.h"
#include "zsg/core/Events.h"

#include "nyxrender/Span.h"

#include <memory>
#include <vector>

// Listeners may call back into the colour database while an event is posted, and may so replace or
// drop any edit and refill any list. The database therefore looks an edit up again after every
// post, and copies a list before a loop that posts.
namespace zsg {

/// Posts an event about one id; nothing without a queue.
template <class EventClass, class Id>
void announce(IEventQueue* queue, Id id) {
    if (queue) {
        post(queue, std::make_unique<EventClass>(id));
    }
}

template <class Id>
std::vector<Id> copied(nyx::Span<Id> ids) {
    return {ids.begin(), ids.end()};
}

} // namespace zsg
