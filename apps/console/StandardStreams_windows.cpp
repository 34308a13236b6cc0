#include "console/StandardStreams.h"

#include <QByteArray>

#include <fcntl.h>
#include <io.h>
#include <stdio.h>
#include <windows.h>

namespace {

bool isOutputTerminal() { return _isatty(_fileno(stdout)) != 0; }

} // namespace

void prepareStandardStreams() {
    // Text mode would change line ends, and end reading at a Ctrl+Z.
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
    if (isOutputTerminal()) {
        SetConsoleCP(CP_UTF8);
        SetConsoleOutputCP(CP_UTF8);
        HANDLE const output = GetStdHandle(STD_OUTPUT_HANDLE);
        DWORD mode = 0;
        if (GetConsoleMode(output, &mode) != 0) {
            SetConsoleMode(output, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
        }
    }
}

bool isTerminal() { return _isatty(_fileno(stdin)) != 0 && isOutputTerminal(); }

bool showsColors() { return isOutputTerminal() && qEnvironmentVariableIsEmpty("NO_COLOR"); }
