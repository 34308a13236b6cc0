#include "host/Command.h"
#include "host/Host.h"

namespace app {

namespace {

void fault(Host& host, Arguments& arguments) {
    nyx::embedded::Faults& faults = host.renderer().faults();
    std::string const name = arguments.oneOf(
        {"creations", "saving", "unique-names", "scene", "notifications", "settings", "painter"});
    if (name == "creations") {
        int const count = arguments.integer("how many creations fail");
        arguments.done();
        faults.failCreations = count;
        return;
    }
    if (name == "saving") {
        int const step = arguments.integer("the step of saving that fails, or 0");
        arguments.done();
        faults.failSaveStep = step;
        return;
    }
    bool const on = arguments.onOff();
    arguments.done();
    bool& fault = name == "unique-names" ? faults.noUniqueNames
                  : name == "scene"      ? faults.noScene
                  : name == "settings"   ? faults.noSettings
                  : name == "painter"    ? faults.noPainter
                                         : faults.holdNotifications;
    fault = on;
}

constexpr Command table[] = {
    {"fault", "NAME N|on|off",
     "let the renderer fail: creations (so many), saving (at a step), unique-names, scene, "
     "settings, notifications, painter",
     "fault creations 1", fault},
};

} // namespace

Family faultFamily() { return {"let the renderer fail", table}; }

} // namespace app
