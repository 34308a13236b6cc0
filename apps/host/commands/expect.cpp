#include "host/CommandTable.h"
#include "host/Host.h"
#include "host/Interpreter.h"
#include "host/KeptScenes.h"

#include <algorithm>

namespace app {

namespace {

void compare(std::string const& what, long long expected, long long found) {
    if (expected != found) {
        throw CommandError("expected " + std::to_string(expected) + ' ' + what + ", found " +
                           std::to_string(found));
    }
}

void events(Host& host, Arguments& arguments) {
    int const expected = arguments.integer("a number of events");
    auto const& entries = host.events().entries();
    if (!arguments.empty()) {
        std::string const type = arguments.word("an event type");
        arguments.done();
        compare(type + " events", expected,
                std::ranges::count(entries, type, &EventLog::Entry::typeText));
        return;
    }
    compare("events", expected, static_cast<long long>(entries.size()));
    host.events().clear();
}

void undo(Host& host, Arguments& arguments) {
    compare("edits to undo", arguments.integer("a number of edits"), host.undoStack().index());
}

void redo(Host& host, Arguments& arguments) {
    compare("edits to redo", arguments.integer("a number of edits"),
            host.undoStack().count() - host.undoStack().index());
}

void undoText(Host& host, Arguments& arguments) {
    std::string const expected = arguments.word("a text");
    std::string const found = host.undoStack().text(host.undoStack().index() - 1).toStdString();
    if (found != expected) {
        throw CommandError("expected \"" + expected + "\", found \"" + found + "\"");
    }
}

void cleanState(Host& host, Arguments& arguments) {
    if (arguments.oneOf({"yes", "no"}) != (host.undoStack().isClean() ? "yes" : "no")) {
        throw CommandError(host.undoStack().isClean() ? "the state is clean"
                                                      : "the state is not clean");
    }
}

void same(Host& host, Arguments& arguments) {
    std::string const name = arguments.word("the name of a kept state");
    std::string const& before = host.state<KeptScenes>().at(name);
    std::string const now = host.dump();
    if (now == before) {
        return;
    }
    auto const [old, other] = std::ranges::mismatch(before, now);
    auto const lineAt = [](std::string const& text, std::string::const_iterator at) {
        auto const offset = static_cast<std::size_t>(at - text.begin());
        std::size_t const begin = offset == 0 ? 0 : text.rfind('\n', offset - 1) + 1;
        return text.substr(begin, text.find('\n', offset) - begin);
    };
    throw CommandError("the scene differs from \"" + name + "\": was \"" + lineAt(before, old) +
                       "\", is \"" + lineAt(now, other) + "\"");
}

void kept(Host& host, Arguments& arguments) {
    std::string const& before =
        host.state<KeptScenes>().at(arguments.word("the name of a kept state"));
    auto const gone = difference(before, host.dump()).gone;
    if (!gone.empty()) {
        throw CommandError("the scene no longer holds \"" + gone.front() + "\"");
    }
}

void contains(Host& host, Arguments& arguments) {
    std::string const text = arguments.word("a text");
    if (host.dump().find(text) == std::string::npos) {
        throw CommandError("the scene does not contain \"" + text + "\"");
    }
}

void journal(Host& host, Arguments& arguments) {
    int const expected = arguments.integer("a number of calls");
    arguments.done();
    compare("calls to the renderer", expected,
            static_cast<long long>(host.renderer().journal().take().size()));
}

void failure(Host& host, Arguments& arguments) {
    std::string const wanted = arguments.word("a text");
    std::vector<std::string> const command = arguments.rest();
    if (command.empty()) {
        throw CommandError("expected a command");
    }
    // A line of nothing else would go as deep as it is long.
    if (command.size() > 1 && command[0] == "expect" && command[1] == "failure") {
        throw CommandError("expect failure cannot be nested");
    }
    try {
        carryOut(host, command);
    } catch (CommandError const& error) {
        if (std::string_view(error.what()).find(wanted) == std::string_view::npos) {
            throw CommandError("expected a failure that says \"" + wanted + "\", found \"" +
                               error.what() + "\"");
        }
        return;
    }
    throw CommandError("expected a failure");
}

void output(Host& host, Arguments& arguments) {
    std::string const text = arguments.word("a text");
    arguments.done();
    if (host.state<LastOutput>().text.find(text) == std::string::npos) {
        throw CommandError("\"" + text + "\" was not printed");
    }
}

constexpr Command table[] = {
    {"expect events", "N [TYPE]", "so many events since the last count; without TYPE count anew",
     "expect events 42 ColorSynced", events},
    {"expect undo", "N", "so many edits can be undone", "expect undo 0", undo},
    {"expect redo", "N", "so many edits can be redone", "expect redo 0", redo},
    {"expect text", "TEXT", "the last edit's text", "expect text \"\"", undoText},
    {"expect clean", "yes|no", "whether the saved state is the present one", "expect clean yes",
     cleanState},
    {"expect scene", "NAME", "the scene is as it was when it was kept", "expect scene start", same},
    {"expect kept", "NAME", "all that was kept is as it was; new records do not count",
     "expect kept start", kept},
    {"expect contains", "TEXT", "the scene's listing contains TEXT", "expect contains SteelBlue",
     contains},
    {"expect failure", "TEXT COMMAND...", "the command fails and says TEXT",
     "expect failure \"nothing to undo\" undo", failure},
    {"expect output", "TEXT", "the last command but expect printed TEXT", "expect output \"\"",
     output},
    {"expect calls", "N", "so many recorded calls to the renderer; forgets them", "expect calls 0",
     journal},
};

} // namespace

Family expectFamily() { return {"what a script expects; it fails where that is not so", table}; }

} // namespace app
