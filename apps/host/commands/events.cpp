#include "host/Command.h"
#include "host/Host.h"

#include "zsg/core/EventType.h"
#include "zsg/core/Events.h"

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
    for (int type = 0; type <= static_cast<int>(zsg::EventType::LightLayerSynced); ++type) {
        host.out() << type << ' ' << zsg::eventTypeString(static_cast<zsg::EventType>(type))
                   << '\n';
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
