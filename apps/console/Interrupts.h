#pragma once

/// From now on an interrupt (Ctrl-C) does not end the process: it is app::requestInterruption(),
/// and ends waitForInput(). Once.
void catchInterrupts();

/// Waits until standard input can be read, or has ended. False when it was an interrupt that came,
/// which is taken then.
[[nodiscard]] bool waitForInput();
