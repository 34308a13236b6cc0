#pragma once

#include "zsg/core/IEventQueue.h"

#include <QVarLengthArray>

#include <array>
#include <cstddef>
#include <unordered_map>
#include <vector>

namespace zsg {

/// The event queue of a root. Keeps one list of listeners per event type, so that a post touches
/// nobody who is not interested.
class ZEventQueue final : public IEventQueue {
public:
    ZEventQueue();
    ~ZEventQueue() override;

    void subscribe(IEventListener* listener, EventType type) override;
    void unsubscribe(IEventListener* listener) override;
    void post(Event* event) override;

private:
    struct Entry;
    /// One interest in a type. While a delivery runs, seats keep their index: a leaving listener
    /// leaves a seat without listener behind, an arriving one goes to the end.
    struct Seat {
        IEventListener* listener;
        Entry* entry;
    };
    struct List {
        std::vector<Seat> seats;
        bool hasHoles = false;
    };
    struct Place {
        List* list;
        std::size_t index;
    };
    /// What a listener is subscribed to; does not move in memory while the listener is subscribed.
    struct Entry {
        QVarLengthArray<Place, 4> places;
    };
    class Delivery;

    List* findList(EventType type);
    static void removeSeat(List& list, std::size_t index);
    void closeHoles();

    static constexpr std::size_t knownTypes = allEventTypes.size();
    std::array<List, knownTypes> known_;
    std::unordered_map<EventType, List> others_;
    std::unordered_map<IEventListener*, Entry> listeners_;
    int depth_ = 0;
    bool hasHoles_ = false;
};

} // namespace zsg
