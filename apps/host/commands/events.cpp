#include "host/Command.h"
#include "host/CommandResult.h"
#include "host/Host.h"
#include "zsg/core/EventType.h"

#include <ostream>

namespace app {

namespace {

void list(Host& host, Arguments&) {
    beginResultList(host);
    for (EventLog::Entry const& event : host.events().entries()) {
        host.out() << eventLine(event) << '\n';
        addResult(host, [&] { return eventResult(event); });
    }
}

void show(Host& host, Arguments& arguments) {
    std::string const what = arguments.oneOf({"on", "off", "all"});
    arguments.done();
    host.showEvents(what == "all"  ? EventPrinter::Show::Each
                    : what == "on" ? EventPrinter::Show::Runs
                                   : EventPrinter::Show::Nothing);
}

void clear(Host& host, Arguments&) { host.events().clear(); }

void types(Host& host, Arguments&) {
    beginResultList(host);
    for (zsg::EventType const type : zsg::allEventTypes) {
        addResult(host, [&] {
            return nlohmann::ordered_json{{"id", static_cast<std::uint32_t>(type)},
                                          {"name", zsg::eventTypeString(type)}};
        });
        host.out() << static_cast<std::uint32_t>(type) << ' ' << zsg::eventTypeString(type) << '\n';
    }
}

constexpr Command table[] = {
    {"events", "", "list the events since the last count", "events", list},
    {"events show", "on|off|all",
     "print events as they arrive, in runs of a type, or each on a line", "events show all", show},
    {"events clear", "", "begin to count anew", "events clear", clear},
    {"events types", "", "list the event types", "events types", types},
};

} // namespace

Family eventsFamily() { return {"what has been announced", table}; }

} // namespace app
