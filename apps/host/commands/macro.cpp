#include "host/Command.h"
#include "host/Host.h"

namespace app {

namespace {

void begin(Host& host, Arguments& arguments) {
    std::string const text = arguments.word("a text");
    arguments.done();
    host.undoStack().beginMacro(QString::fromStdString(text));
}

void end(Host& host, Arguments& arguments) {
    std::string const text = arguments.empty() ? std::string() : arguments.word("a text");
    arguments.done();
    if (host.undoStack().macroDepth() == 0) {
        throw CommandError("no macro is open");
    }
    host.undoStack().endMacro(QString::fromStdString(text));
}

constexpr Command table[] = {
    {"macro begin", "TEXT", "collect the coming edits into one", "macro begin \"Autumn look\"",
     begin},
    {"macro end", "[TEXT]", "end the innermost macro", "macro end", end},
};

} // namespace

Family macroFamily() { return {"several edits as one", table}; }

} // namespace app
