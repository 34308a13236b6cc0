#pragma once

namespace app {

// A person who wants a long command to end asks for it by a flag of the process, since a signal
// has no other way to speak. What may take long looks at it between two steps.

/// Safe in a signal handler and on any thread.
void requestInterruption() noexcept;
/// Whether it was asked for; forgets it.
bool takeInterruption() noexcept;
/// Throws CommandError with the code "interrupted" when it was asked for, and forgets it.
void endIfInterrupted();

} // namespace app
