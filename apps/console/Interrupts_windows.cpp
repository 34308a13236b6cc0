#include "console/Interrupts.h"

#include "host/Interruption.h"

#include <windows.h>

// The handler runs on a thread of its own. Reading a line ends without one at an interrupt, and the
// line editor then asks whether there was one.

void catchInterrupts() {
    SetConsoleCtrlHandler(
        [](DWORD event) -> BOOL {
            if (event != CTRL_C_EVENT) {
                return FALSE;
            }
            app::requestInterruption();
            return TRUE;
        },
        TRUE);
}

bool waitForInput() { return true; }
