#include "host/Command.h"
#include "host/Host.h"

namespace app {

namespace {

void quit(Host& host, Arguments&) { host.requestEnd(); }

constexpr Command table[] = {
    {"quit", "", "end the session", "quit", quit},
    {"exit", "", "end the session", "exit", quit},
};

} // namespace

Family quitFamily() { return {"the end", table}; }

} // namespace app
