#include "host/Command.h"
#include "host/Host.h"

namespace app {

namespace {

template <Host::End end>
void quit(Host& host, Arguments&) {
    host.requestEnd(end);
}

constexpr Command table[] = {
    {"quit", "", "end the session; a terminal asks about unsaved edits", "quit",
     quit<Host::End::WhenSaved>},
    {"exit", "", "the same", "exit", quit<Host::End::WhenSaved>},
    {"quit!", "", "end the session, saved or not", "quit!", quit<Host::End::Now>},
};

} // namespace

Family quitFamily() { return {"the end", table}; }

} // namespace app
