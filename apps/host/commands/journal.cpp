#include "host/Command.h"
#include "host/Host.h"

#include <ostream>

namespace app {

namespace {

void record(Host& host, Arguments& arguments) {
    bool const on = arguments.onOff();
    arguments.done();
    host.renderer().journal().setRecording(on);
}

void show(Host& host, Arguments&) {
    for (std::string const& line : host.renderer().journal().take()) {
        host.out() << line << '\n';
    }
}

constexpr Command table[] = {
    {"journal", "", "show and forget the recorded calls", "journal", show},
    {"journal record", "on|off", "record the calls to the renderer", "journal record on", record},
};

} // namespace

Family journalFamily() { return {"the calls that reached the renderer", table}; }

} // namespace app
