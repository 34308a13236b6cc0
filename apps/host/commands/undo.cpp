#include "host/Command.h"
#include "host/Host.h"

#include <ostream>

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

void history(Host& host, Arguments&) {
    ZUndoStack const& stack = host.undoStack();
    for (int i = 0; i < stack.count(); ++i) {
        host.out() << (i < stack.index() ? "  done   " : "  undone ") << i + 1 << ' '
                   << stack.text(i).toStdString() << (i + 1 == stack.cleanIndex() ? " *" : "")
                   << '\n';
    }
}

void goTo(Host& host, Arguments& arguments) {
    int const index = arguments.integer("how many entries are done");
    arguments.done();
    if (!host.undoStack().goTo(index)) {
        throw CommandError("there is no way to that place");
    }
}

void macroBegin(Host& host, Arguments& arguments) {
    std::string const text = arguments.word("a text");
    arguments.done();
    host.undoStack().beginMacro(QString::fromStdString(text));
}

void macroEnd(Host& host, Arguments& arguments) {
    std::string const text = arguments.empty() ? std::string() : arguments.word("a text");
    arguments.done();
    if (host.undoStack().macroDepth() == 0) {
        throw CommandError("no macro is open");
    }
    host.undoStack().endMacro(QString::fromStdString(text));
}

void clean(Host& host, Arguments&) { host.undoStack().setClean(); }

void limit(Host& host, Arguments& arguments) {
    int const entries = arguments.integer("how many entries are kept");
    arguments.done();
    if (entries < 0) {
        throw CommandError("expected 0 or more");
    }
    host.undoStack().setLimit(entries);
}

constexpr Command table[] = {
    {"undo", "[N|all]", "take edits back", undo},
    {"redo", "[N|all]", "make edits again", redo},
    {"history", "", "list the edits, * marks the saved state", history},
    {"goto", "N", "undo or redo until N edits are done", goTo},
    {"macro begin", "TEXT", "collect the coming edits into one", macroBegin},
    {"macro end", "[TEXT]", "end the innermost macro", macroEnd},
    {"history clean", "", "mark the present state as saved", clean},
    {"history limit", "N", "keep at most N edits, 0 keeps all", limit},
};

} // namespace

Family undoFamily() { return {"the undo stack", table}; }

} // namespace app
