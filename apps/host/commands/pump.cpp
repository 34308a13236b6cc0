#include "host/Command.h"
#include "host/Host.h"

namespace app {

namespace {

void pump(Host& host, Arguments&) { host.pump(); }

constexpr Command table[] = {
    {"pump", "", "deliver what the renderer has to say (every command does)", "pump", pump},
};

} // namespace

Family pumpFamily() { return {"deliver what the renderer has to say", table}; }

} // namespace app
