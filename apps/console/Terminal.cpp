#include "console/Terminal.h"

#include "console/LineEditor.h"
#include "host/Host.h"
#include "host/Interpreter.h"
#include "host/Interruption.h"

#include <iostream>

namespace {

using Result = LineEditor::Result;

void runLine(app::Interpreter& interpreter, app::Host& host, std::string const& line) {
    try {
        interpreter.run(std::string_view(line));
    } catch (std::exception const& error) {
        host.out().flush();
        std::cerr << error.what() << std::endl;
    }
    app::takeInterruption(); // one that came too late
}

/// Whether nothing would be lost, or may be.
bool mayEnd(app::Host& host, LineEditor& editor) {
    if (host.undoStack().isClean()) {
        return true;
    }
    host.out() << "There are edits that are not saved; \"scene save PATH\" does.\n" << std::flush;
    std::string answer;
    switch (editor.readAnswer("End without saving? [y/N] ", answer)) {
    case Result::Line:
        return answer == "y" || answer == "Y" || answer == "yes";
    case Result::Interrupted:
        host.out() << "^C\n";
        return false;
    case Result::End:
        break;
    }
    host.out() << '\n'; // a second Ctrl-D, or there is nobody any more
    return true;
}

} // namespace

void runTerminalSession(app::Interpreter& interpreter, app::Host& host) {
    LineEditor editor([&host](std::string_view line) { return app::completionOf(host, line); });
    host.pump();
    host.out() << "\"help\" lists the commands, \"quit\" ends.\n";
    while (!host.endRequested()) {
        host.out().flush();
        std::string line;
        switch (editor.readCommand("zsg> ", line)) {
        case Result::Line:
            runLine(interpreter, host, line);
            break;
        case Result::Interrupted:
            host.out() << "^C\n";
            break;
        case Result::End:
            host.out() << '\n';
            host.requestEnd(app::Host::End::WhenSaved);
            break;
        }
        if (host.end() == app::Host::End::WhenSaved && !mayEnd(host, editor)) {
            host.requestEnd(app::Host::End::No);
        }
    }
}
