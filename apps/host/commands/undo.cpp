#include "host/Command.h"
#include "host/Host.h"

namespace app {

namespace {

void repeat(Arguments& arguments, ZUndoStack& stack, bool (ZUndoStack::*step)(),
            bool (ZUndoStack::*possible)() const, char const* nothing) {
    bool const all = arguments.flag("all");
    int count = all || arguments.empty() ? 1 : arguments.integer("how many steps, or all");
    arguments.done();
    if (count < 0) {
        throw CommandError("expected 0 or more");
    }
    if (!all && !(stack.*possible)()) {
        throw CommandError(nothing);
    }
    for (; (all || count > 0) && (stack.*possible)(); --count) {
        if (!(stack.*step)()) {
            throw CommandError("a step could not be carried out");
        }
    }
}

void undo(Host& host, Arguments& arguments) {
    repeat(arguments, host.undoStack(), &ZUndoStack::undo, &ZUndoStack::canUndo,
           "there is nothing to undo");
}

void redo(Host& host, Arguments& arguments) {
    repeat(arguments, host.undoStack(), &ZUndoStack::redo, &ZUndoStack::canRedo,
           "there is nothing to redo");
}

constexpr Command table[] = {
    {"undo", "[N|all]", "take edits back", undo},
    {"redo", "[N|all]", "make edits again", redo},
};

} // namespace

Family undoFamily() { return {"take edits back, make them again", table}; }

} // namespace app
