#pragma once

#include "zsg/Export.h"
#include "zsg/core/EventType.h"
#include "zsg/core/IEventQueue.h"

#include <QPointer>

#include <initializer_list>

namespace zsg {

class IEventListener;

/// Keeps a listener subscribed for as long as it lives. Make it the last member of a listener, so
/// that it goes first. The queue may go before it. Main thread.
///
/// A queue knows a listener only as a whole: the end of a Subscription drops *all* types of its
/// listener, those of a second Subscription included. Use one per listener and queue.
class ZSG_EXPORT Subscription {
public:
    /// Both are borrowed. Nothing stays subscribed when the queue throws.
    Subscription(IEventQueue& queue, IEventListener& listener,
                 std::initializer_list<EventType> types);
    ~Subscription();
    /// What is moved from keeps nothing subscribed; what is assigned to unsubscribes its own first.
    Subscription(Subscription&& other) noexcept;
    Subscription& operator=(Subscription&& other) noexcept;

private:
    Subscription(IEventQueue& queue, IEventListener& listener);
    void release();

    QPointer<IEventQueue> queue_;
    IEventListener* listener_;
};

} // namespace zsg
