// What the renderer does by itself, behind the library's back.

#include "host/ColorArguments.h"
#include "host/Command.h"
#include "host/Host.h"

namespace app {

namespace {

void changeColor(Host& host, Arguments& arguments) {
    nyx::ColorId const id = takeColor(host, arguments);
    nyxColor_rgba const rgba = takeRgba(host, arguments);
    arguments.done();
    host.renderer().colors().change(id, rgba);
}

void removeColor(Host& host, Arguments& arguments) {
    nyx::ColorId const id = takeColor(host, arguments);
    arguments.done();
    host.renderer().colors().remove(id);
}

void activateColorway(Host& host, Arguments& arguments) {
    nyx::ColorwayId const id = takeColorway(host, arguments);
    arguments.done();
    if (!host.renderer().colorways().activate(id)) {
        throw CommandError("the renderer has no such colorway");
    }
}

constexpr Command table[] = {
    {"renderer color", "COLOR RGBA", "change a value on the renderer's side",
     "renderer color Teal #00a0a0", changeColor},
    {"renderer remove", "COLOR", "take a record away on the renderer's side",
     "renderer remove Plum", removeColor},
    {"renderer colorway", "COLORWAY", "switch to it on the renderer's side",
     "renderer colorway Autumn", activateColorway},
};

} // namespace

Family rendererFamily() { return {"what the renderer does by itself", table}; }

} // namespace app
