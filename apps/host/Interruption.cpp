#include "host/Interruption.h"

#include "host/Arguments.h"

#include <atomic>

namespace app {

namespace {

std::atomic<bool> requested = false;
static_assert(std::atomic<bool>::is_always_lock_free, "signal handlers set it");

} // namespace

void requestInterruption() noexcept { requested = true; }

bool takeInterruption() noexcept { return requested.exchange(false); }

void endIfInterrupted() {
    if (takeInterruption()) {
        throw CommandError("interrupted", "interrupted");
    }
}

} // namespace app
