#include "host/Command.h"
#include "host/Host.h"

#include "zsg/core/EventType.h"

#include <ostream>

namespace app {

namespace {

void list(Host& host, Arguments&) {
    for (EventLog::Entry const& event : host.events().entries()) {
        host.out() << "event " << event.id << ' ' << event.typeText
                   << (event.payload.empty() ? "" : " ") << event.payload << '\n';
    }
}

void show(Host& host, Arguments& arguments) {
    bool const on = arguments.onOff();
    arguments.done();
    host.showEvents(on);
}

void clear(Host& host, Arguments&) { host.events().clear(); }

void types(Host& host, Arguments&) {
    for (zsg::EventType const type : zsg::allEventTypes) {
        host.out() << static_cast<std::uint32_t>(type) << ' ' << zsg::eventTypeString(type) << '\n';
    }
}

constexpr Command table[] = {
    {"events", "", "list the events since the last count", list},
    {"events show", "on|off", "print events as they arrive", show},
    {"events clear", "", "begin to count anew", clear},
    {"events types", "", "list the event types", types},
};

} // namespace

Family eventsFamily() { return {"what has been announced", table}; }

} // namespace app
