#pragma once

namespace app {
class Host;
class Interpreter;
} // namespace app

/// Reads commands from the terminal until the end of input or quit. A failing command is reported
/// and the session goes on.
void runTerminalSession(app::Interpreter& interpreter, app::Host& host);
