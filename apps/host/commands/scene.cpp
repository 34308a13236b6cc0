#include "host/Command.h"
#include "host/Host.h"

#include <ostream>

namespace app {

namespace {

void show(Host& host, Arguments&) { host.out() << host.renderer().dump(); }

void load(Host& host, Arguments& arguments) {
    std::string const path = arguments.word("a path");
    arguments.done();
    if (std::string const message = host.load(path); !message.empty()) {
        throw CommandError(message);
    }
}

void save(Host& host, Arguments& arguments) {
    std::string const path = arguments.word("a path");
    arguments.done();
    if (std::string const message = host.renderer().saveScene(path); !message.empty()) {
        throw CommandError(message);
    }
}

void pump(Host& host, Arguments&) { host.pump(); }

void recordJournal(Host& host, Arguments& arguments) {
    bool const on = arguments.onOff();
    arguments.done();
    host.renderer().recordJournal(on);
}

void showJournal(Host& host, Arguments&) {
    for (std::string const& line : host.renderer().takeJournal()) {
        host.out() << line << '\n';
    }
}

void ledger(Host& host, Arguments&) {
    nyx::embedded::Ledger const l = host.renderer().ledger();
    host.out() << "blocks " << l.blocks << ", arrays " << l.arrays << ", aligned "
               << l.alignedBlocks << ", texts " << l.texts << ", lock depth " << l.lockDepth
               << ", strings " << l.strings << '\n';
}

void fault(Host& host, Arguments& arguments) {
    nyx::embedded::Faults& faults = host.renderer().faults();
    std::string const name =
        arguments.oneOf({"creations", "unique-names", "scene", "notifications", "settings"});
    if (name == "creations") {
        int const count = arguments.integer("how many creations fail");
        arguments.done();
        faults.failCreations = count;
        return;
    }
    bool const on = arguments.onOff();
    arguments.done();
    bool& fault = name == "unique-names" ? faults.noUniqueNames
                  : name == "scene"      ? faults.noScene
                  : name == "settings"   ? faults.noSettings
                                         : faults.holdNotifications;
    fault = on;
}

constexpr Command table[] = {
    {"scene", "", "show everything that the scene holds", show},
    {"scene load", "PATH", "replace the scene; the history is cleared", load},
    {"scene save", "PATH", "write the scene", save},
    {"pump", "", "deliver what the renderer has to say (every command does)", pump},
    {"journal record", "on|off", "record the calls to the renderer", recordJournal},
    {"journal", "", "show and forget the recorded calls", showJournal},
    {"ledger", "", "show what the renderer has lent out", ledger},
    {"fault", "NAME N|on|off",
     "let the renderer fail: creations, unique-names, scene, settings, "
     "notifications",
     fault},
};

} // namespace

Family sceneFamily() { return {"the scene, and the renderer behind it", table}; }

} // namespace app
