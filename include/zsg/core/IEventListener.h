#pragma once

#include "zsg/Export.h"

namespace zsg {

class Event;

/// Hears of events that it was subscribed to. It must be unsubscribed before it goes away; see
/// Subscription. Implemented by the application.
class ZSG_EXPORT IEventListener {
public:
    virtual ~IEventListener() = default;

    /// Called once per event, on the main thread, within IEventQueue::post(). The event belongs to
    /// the queue and goes away after the delivery: copy what is to be kept, delete nothing. May
    /// post further events and change subscriptions, its own included. It must not destroy the
    /// queue or the root: whoever posted works on with them. An exception ends the delivery, passes
    /// to the caller of post(), and the event leaks.
    virtual void onEvent(Event const* event) = 0;
};

} // namespace zsg
