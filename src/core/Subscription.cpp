#include "zsg/core/Subscription.h"

#include "zsg/core/IEventListener.h"

#include <utility>

namespace zsg {

Subscription::Subscription(IEventQueue& queue, IEventListener& listener)
    : queue_(&queue), listener_(&listener) {}

// Delegates, so that the destructor cleans up when a subscribe() throws.
Subscription::Subscription(IEventQueue& queue, IEventListener& listener,
                           std::initializer_list<EventType> types)
    : Subscription(queue, listener) {
    for (EventType const type : types) {
        queue.subscribe(&listener, type);
    }
}

Subscription::~Subscription() { release(); }

Subscription::Subscription(Subscription&& other) noexcept
    : queue_(std::exchange(other.queue_, {})), listener_(std::exchange(other.listener_, nullptr)) {}

Subscription& Subscription::operator=(Subscription&& other) noexcept {
    if (this != &other) {
        release();
        queue_ = std::exchange(other.queue_, {});
        listener_ = std::exchange(other.listener_, nullptr);
    }
    return *this;
}

void Subscription::release() {
    if (queue_) {
        queue_->unsubscribe(listener_);
    }
}

} // namespace zsg
