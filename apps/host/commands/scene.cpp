#include "host/Command.h"
#include "host/CommandResult.h"
#include "host/Host.h"
#include "host/KeptScenes.h"

#include <ostream>

namespace app {

namespace {

void show(Host& host, Arguments&) {
    host.out() << host.renderer().dump();
    giveResult(host, [&] { // as a scene file has it
        return nlohmann::ordered_json::parse(host.renderer().saveSceneText());
    });
}

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

void keep(Host& host, Arguments& arguments) {
    std::string const name = arguments.word("a name for the state");
    arguments.done();
    host.state<KeptScenes>().byName[name] = host.renderer().dump();
}

constexpr Command table[] = {
    {"scene", "", "show everything that the scene holds", "scene", show},
    {"scene load", "PATH", "replace the scene; the history is cleared",
     "scene load examples/scenes/showroom.json", load},
    {"scene save", "PATH", "write the scene", "scene save mine.json", save},
    {"scene keep", "NAME", "keep the present state, for expect scene", "scene keep before", keep},
};

} // namespace

Family sceneFamily() { return {"the whole scene: show, load, save", table}; }

} // namespace app
