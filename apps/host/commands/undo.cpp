#include "host/Command.h"
#include "host/Host.h"
#include "host/Interruption.h"
#include "host/printable.h"

#include <ostream>

namespace app {

namespace {

/// Of the texts of many steps so many are printed.
constexpr int mostTexts = 5;

struct Way {
    char const* name;
    int offset; ///< from the stack's index to the entry that is next
    bool (ZUndoStack::*step)();
    bool (ZUndoStack::*possible)() const;
};

void repeat(Host& host, Arguments& arguments, Way const& way) {
    bool const all = arguments.flag("all");
    int count = all || arguments.empty() ? 1 : arguments.integer("how many steps, or all");
    arguments.done();
    if (count < 0) {
        throw CommandError("expected 0 or more");
    }
    ZUndoStack& stack = host.undoStack();
    if (!all && !(stack.*way.possible)()) {
        throw CommandError(std::string("there is nothing to ") + way.name);
    }
    int done = 0;
    for (; (all || count > 0) && (stack.*way.possible)(); --count) {
        endIfInterrupted();
        QString const text = stack.text(stack.index() + way.offset);
        if (!(stack.*way.step)()) {
            throw CommandError('"' + text.toStdString() + "\" could not be carried out");
        }
        if (++done <= mostTexts) {
            host.out() << "  " << way.name << ": " << printable(text.toStdString()) << '\n';
        }
    }
    if (done > mostTexts) {
        host.out() << "  and " << done - mostTexts << " more\n";
    }
}

void undo(Host& host, Arguments& arguments) {
    repeat(host, arguments, {"undo", -1, &ZUndoStack::undo, &ZUndoStack::canUndo});
}

void redo(Host& host, Arguments& arguments) {
    repeat(host, arguments, {"redo", 0, &ZUndoStack::redo, &ZUndoStack::canRedo});
}

constexpr Command table[] = {
    {"undo", "[N|all]", "take edits back", "undo all", undo},
    {"redo", "[N|all]", "make edits again", "redo all", redo},
};

} // namespace

Family undoFamily() { return {"take edits back, make them again", table}; }

} // namespace app
