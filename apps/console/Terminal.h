#pragma once

namespace app {

class Host;
class Interpreter;

/// Whether somebody sits at standard input and output.
[[nodiscard]] bool isTerminal();

/// Reads commands with line editing, history and completion of command names until the end of input
/// or quit. A failing command is reported and the session goes on. Returns the exit code.
int runTerminalSession(Interpreter& interpreter, Host& host);

} // namespace app
