#include "host/Command.h"
#include "host/CommandResult.h"
#include "host/Host.h"
#include "host/printable.h"

#include <ostream>

namespace app {

namespace {

void list(Host& host, Arguments&) {
    ZUndoStack const& stack = host.undoStack();
    beginResultList(host);
    for (int i = 0; i < stack.count(); ++i) {
        addResult(host, [&] {
            return nlohmann::ordered_json{{"text", stack.text(i).toStdString()},
                                          {"done", i < stack.index()},
                                          {"saved", i + 1 == stack.cleanIndex()}};
        });
        host.out() << (i < stack.index() ? "  done   " : "  undone ") << i + 1 << ' '
                   << printable(stack.text(i).toStdString())
                   << (i + 1 == stack.cleanIndex() ? " *" : "") << '\n';
    }
}

void goTo(Host& host, Arguments& arguments) {
    int const index = arguments.integer("how many entries are done");
    arguments.done();
    if (!host.undoStack().goTo(index)) {
        throw CommandError("there is no way to that place");
    }
}

void clean(Host& host, Arguments&) { host.undoStack().setClean(); }

void forget(Host& host, Arguments&) { host.undoStack().clearRedo(); }

void limit(Host& host, Arguments& arguments) {
    int const entries = arguments.integer("how many entries are kept");
    arguments.done();
    if (entries < 0) {
        throw CommandError("expected 0 or more");
    }
    host.undoStack().setLimit(entries);
}

constexpr Command table[] = {
    {"history", "", "list the edits, * marks the saved state", "history", list},
    {"history goto", "N", "undo or redo until N edits are done", "history goto 0", goTo},
    {"history clean", "", "mark the present state as saved", "history clean", clean},
    {"history forget", "", "drop the edits that could be made again", "history forget", forget},
    {"history limit", "N", "keep at most N edits, 0 keeps all", "history limit 100", limit},
};

} // namespace

Family historyFamily() { return {"the list of edits", table}; }

} // namespace app
