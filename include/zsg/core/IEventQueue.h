#pragma once

#include "zsg/Export.h"
#include "zsg/core/EventType.h"

#include <QObject>

namespace zsg {

class Event;
class IEventListener;

/// Where changes are announced. There is no backlog in spite of the name: post() delivers before it
/// returns. Main thread only. Listeners are borrowed; destroying the queue tells them nothing.
class ZSG_EXPORT IEventQueue : public QObject {
public:
    ~IEventQueue() override;

    /// From now on the listener gets events of this type too, each one once however often it was
    /// subscribed. Every value counts as a type, also those that no event of the library has.
    /// A null listener is ignored.
    virtual void subscribe(IEventListener* listener, EventType type) = 0;

    /// The listener gets nothing any more, of no type. Ignored when it was not subscribed.
    virtual void unsubscribe(IEventListener* listener) = 0;

    /// Takes ownership of `event`, calls every listener of its type, and deletes it; null is
    /// ignored. No order of listeners is promised.
    ///
    /// A listener that was subscribed before the call and stays so gets the event exactly once,
    /// whatever happens to other subscriptions meanwhile. One that is unsubscribed before its turn
    /// does not get it, nor does one that is subscribed (or subscribed again) during the delivery.
    /// Events that listeners post are delivered completely before this delivery goes on. When a
    /// listener throws, the delivery ends, the event is not deleted, and the queue stays usable.
    virtual void post(Event* event) = 0;

protected:
    IEventQueue();
};

} // namespace zsg
