#pragma once

#include "zsg/Export.h"
#include "zsg/core/EventType.h"

#include <cstdint>

namespace zsg {

/// Base of everything that is announced through the event queue. type() says which class of
/// Events.h an event is, so that a listener may static_cast to it. Events are made on the main
/// thread only: the serial number is counted without synchronisation.
class ZSG_EXPORT Event {
public:
    virtual ~Event();

    [[nodiscard]] EventType type() const noexcept { return type_; }
    /// A serial number over all events of the process, from 0 in the order of construction,
    /// wrapping at 2^32. A copy is the same event and keeps the number.
    [[nodiscard]] unsigned int eventId() const noexcept { return eventId_; }

protected:
    explicit Event(EventType type) noexcept;
    Event(Event const&) = default;
    Event(Event&&) = default;
    Event& operator=(Event const&) = default;
    Event& operator=(Event&&) = default;

private:
    EventType type_;
    std::uint32_t eventId_;
};

} // namespace zsg
