#pragma once

namespace app {
class Host;
class Interpreter;
} // namespace app

/// Reads commands from the terminal until the end of input or quit. A failing command is reported
/// and the session goes on. Before it ends, it asks about unsaved edits, but for quit!. An
/// interrupt (Ctrl-C) ends the running command, or clears the line that is being typed.
void runTerminalSession(app::Interpreter& interpreter, app::Host& host);
