#pragma once

#include "zsg/core/Event.h"
#include "zsg/core/IEventQueue.h"

#include <memory>

namespace zsg {

/// Hands an event over to a queue, which delivers and deletes it. Without a queue the event is
/// dropped.
inline void post(IEventQueue* queue, std::unique_ptr<Event> event) {
    if (queue) {
        queue->post(event.release());
    }
}

} // namespace zsg
