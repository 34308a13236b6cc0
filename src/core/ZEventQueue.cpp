#include "core/ZEventQueue.h"

#include "zsg/core/Event.h"
#include "zsg/core/IEventListener.h"

#include <algorithm>
#include <utility>

namespace zsg {

/// Holds the seats of all lists in place. Leaving it by an exception counts as well.
class ZEventQueue::Delivery {
public:
    explicit Delivery(ZEventQueue& queue) : queue_(queue) { ++queue_.depth_; }
    ~Delivery() {
        if (--queue_.depth_ == 0 && queue_.hasHoles_) {
            queue_.closeHoles();
        }
    }
    Delivery(Delivery const&) = delete;
    Delivery& operator=(Delivery const&) = delete;

private:
    ZEventQueue& queue_;
};

ZEventQueue::ZEventQueue() = default;

ZEventQueue::~ZEventQueue() {
    Q_ASSERT_X(depth_ == 0, "ZEventQueue", "destroyed by a listener, inside post()");
}

void ZEventQueue::subscribe(IEventListener* listener, EventType type) {
    if (!listener) {
        return;
    }
    auto const number = static_cast<std::size_t>(type);
    List& list = number < knownTypes ? known_[number] : others_[type];
    Entry& entry = listeners_[listener];
    bool const already = std::any_of(entry.places.cbegin(), entry.places.cend(),
                                     [&list](Place const& place) { return place.list == &list; });
    if (already) {
        return;
    }
    // All that can fail comes before the place is noted: unsubscribe() must find every seat.
    if (entry.places.size() == entry.places.capacity()) {
        entry.places.reserve(2 * entry.places.size());
    }
    list.seats.push_back({listener, &entry});
    entry.places.append(Place{&list, list.seats.size() - 1});
}

void ZEventQueue::unsubscribe(IEventListener* listener) {
    auto const found = listeners_.find(listener);
    if (found == listeners_.end()) {
        return;
    }
    for (Place const& place : found->second.places) {
        if (depth_ == 0) {
            removeSeat(*place.list, place.index);
        } else {
            place.list->seats[place.index] = {};
            place.list->hasHoles = true;
            hasHoles_ = true;
        }
    }
    listeners_.erase(found);
}

void ZEventQueue::post(Event* event) {
    if (!event) {
        return;
    }
    if (List* const list = findList(event->type())) {
        Delivery const delivery(*this);
        // Who subscribes from now on stands behind this count. The list may grow at every call.
        std::size_t const count = list->seats.size();
        for (std::size_t i = 0; i < count; ++i) {
            if (IEventListener* const listener = list->seats[i].listener) {
                listener->onEvent(event);
            }
        }
    }
    // Not reached when a listener throws: the event is promised to stay then.
    delete event;
}

ZEventQueue::List* ZEventQueue::findList(EventType type) {
    auto const number = static_cast<std::size_t>(type);
    if (number < knownTypes) {
        return &known_[number];
    }
    auto const found = others_.find(type);
    return found == others_.end() ? nullptr : &found->second;
}

void ZEventQueue::removeSeat(List& list, std::size_t index) {
    Seat const last = list.seats.back();
    list.seats.pop_back();
    if (index == list.seats.size()) {
        return;
    }
    list.seats[index] = last;
    for (Place& place : last.entry->places) {
        if (place.list == &list) {
            place.index = index;
        }
    }
}

void ZEventQueue::closeHoles() {
    auto const close = [](List& list) {
        if (!std::exchange(list.hasHoles, false)) {
            return;
        }
        // Backwards: everything behind a hole is taken, so the last seat can fill it.
        for (std::size_t i = list.seats.size(); i-- > 0;) {
            if (!list.seats[i].listener) {
                removeSeat(list, i);
            }
        }
    };
    std::for_each(known_.begin(), known_.end(), close);
    for (auto& [type, list] : others_) {
        close(list);
    }
    hasHoles_ = false;
}

} // namespace zsg
