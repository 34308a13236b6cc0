#include "host/Command.h"
#include "host/Host.h"

namespace app {

namespace {

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
    {"fault", "NAME N|on|off",
     "let the renderer fail: creations, unique-names, scene, settings, "
     "notifications",
     fault},
};

} // namespace

Family faultFamily() { return {"let the renderer fail", table}; }

} // namespace app
