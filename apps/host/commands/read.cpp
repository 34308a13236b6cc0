#include "host/Command.h"
#include "host/Host.h"
#include "host/Interpreter.h"

#include <memory>
#include <sstream>

namespace app {

namespace {

/// A file that reads itself must end.
constexpr int deepest = 16;

struct Depth {
    int files = 0;
};

void read(Host& host, Arguments& arguments) {
    std::string const path = arguments.word("a path");
    arguments.done();
    int& files = host.state<Depth>().files;
    if (files == deepest) {
        throw CommandError("files that read each other " + std::to_string(deepest) + " deep");
    }
    std::ostringstream errors;
    ++files;
    auto const leave = [](int* count) { --*count; };
    std::unique_ptr<int, decltype(leave)> const entered(&files, leave);
    int const failures = Interpreter(host).runScriptFile(path, false, errors);
    if (failures != 0) {
        std::string message = errors.str();
        message.pop_back(); // its line end
        throw CommandError(message);
    }
}

constexpr Command table[] = {
    {"read", "PATH", "run the commands of a file; the first that fails ends it",
     "read examples/scripts/demo-1-scene.zsg", read},
};

} // namespace

Family readFamily() { return {"run the commands of a file", table}; }

} // namespace app
