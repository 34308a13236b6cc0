#include "host/Command.h"
#include "host/CommandResult.h"
#include "host/Host.h"
#include "host/KeptScenes.h"

#include <ostream>

namespace app {

namespace {

void show(Host& host, Arguments&) {
    host.out() << host.dump();
    giveResult(host, [&] { // as a scene file has it
        return nlohmann::ordered_json::parse(host.saveText());
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
    if (std::string const message = host.save(path); !message.empty()) {
        throw CommandError(message);
    }
}

void keep(Host& host, Arguments& arguments) {
    std::string const name = arguments.word("a name for the state");
    arguments.done();
    host.state<KeptScenes>().byName[name] = host.dump();
}

void compare(Host& host, Arguments& arguments) {
    std::string const name = arguments.word("the name of a kept state");
    auto const [gone, made] = difference(host.state<KeptScenes>().at(name), host.dump());
    for (std::string const& line : gone) {
        host.out() << "- " << line << '\n';
    }
    for (std::string const& line : made) {
        host.out() << "+ " << line << '\n';
    }
    host.out() << (gone.empty() && made.empty() ? "the scene equals \""
                   : gone.empty()               ? "but for what is new, the scene equals \""
                                                : "the scene differs from \"")
               << name << "\"\n";
}

constexpr Command table[] = {
    {"scene", "", "show everything that the scene holds", "scene", show},
    {"scene load", "PATH", "replace the scene; the history is cleared",
     "scene load examples/scenes/showroom.json", load},
    {"scene save", "PATH", "write the scene", "scene save mine.json", save},
    {"scene keep", "NAME", "keep the present state, to compare with", "scene keep before", keep},
    {"scene compare", "NAME", "say how the scene differs from one that was kept",
     "scene compare before", compare},
};

} // namespace

Family sceneFamily() { return {"the whole scene: show, load, save", table}; }

} // namespace app
