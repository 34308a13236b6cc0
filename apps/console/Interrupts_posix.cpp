#include "console/Interrupts.h"

#include "host/Interruption.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace {

// Whichever thread the system gives the signal to, the one that waits for input sees it here. It
// stays readable until it is emptied, so an interrupt just before the wait is not lost.
std::array<int, 2> wakePipe = {-1, -1};

void onInterrupt(int) {
    int const before = errno;
    app::requestInterruption();
    // When the pipe is full, there is enough in it.
    static_cast<void>(!write(wakePipe[1], "", 1));
    errno = before;
}

void emptyPipe() {
    std::array<char, 64> bytes;
    while (read(wakePipe[0], bytes.data(), bytes.size()) > 0) {}
}

} // namespace

void catchInterrupts() {
    if (pipe2(wakePipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return; // then an interrupt ends the process, as it does everywhere
    }
    struct sigaction action = {};
    action.sa_handler = onInterrupt;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART; // what is being read or written goes on
    sigaction(SIGINT, &action, nullptr);
}

bool waitForInput() {
    std::array<pollfd, 2> sources = {{{STDIN_FILENO, POLLIN, 0}, {wakePipe[0], POLLIN, 0}}};
    while (true) {
        int const ready = poll(sources.data(), sources.size(), -1);
        if (ready < 0 && errno != EINTR && errno != EAGAIN) {
            return true; // whoever reads finds out what it is
        }
        if (ready > 0 && sources[1].revents != 0) {
            emptyPipe();
            if (app::takeInterruption()) {
                return false;
            }
        } else if (ready > 0) {
            return true;
        }
    }
}
