#include "workbench/app/TerminationSignals.h"

#include <QtGlobal>

#include <utility>

#ifdef Q_OS_UNIX
    #include <QSocketNotifier>

    #include <array>
    #include <csignal>
    #include <fcntl.h>
    #include <unistd.h>
#endif

namespace workbench {

#ifdef Q_OS_UNIX

namespace {

constexpr std::array caught{SIGTERM, SIGHUP, SIGINT};
int writeEnd = -1;

// A handler may call next to nothing: it writes a byte into a pipe that the event loop watches.
extern "C" void wake(int) {
    char const byte = 0;
    [[maybe_unused]] auto const written = ::write(writeEnd, &byte, 1);
}

} // namespace

class TerminationSignals::Impl {
public:
    explicit Impl(std::function<void()> onSignal) {
        if (::pipe2(ends_.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
            return; // the process then ends as it would without us
        }
        notifier_ = std::make_unique<QSocketNotifier>(ends_[0], QSocketNotifier::Read);
        QObject::connect(notifier_.get(), &QSocketNotifier::activated,
                         [this, call = std::move(onSignal)] {
                             notifier_->setEnabled(false);
                             call();
                         });
        writeEnd = ends_[1];
        for (int const signal : caught) {
            std::signal(signal, &wake);
        }
    }
    ~Impl() {
        if (!notifier_) {
            return;
        }
        for (int const signal : caught) {
            std::signal(signal, SIG_DFL);
        }
        writeEnd = -1;
        notifier_.reset();
        ::close(ends_[0]);
        ::close(ends_[1]);
    }
    Impl(Impl const&) = delete;
    Impl& operator=(Impl const&) = delete;

private:
    std::array<int, 2> ends_{-1, -1};
    std::unique_ptr<QSocketNotifier> notifier_;
};

#else

class TerminationSignals::Impl {
public:
    explicit Impl(std::function<void()> const&) {}
};

#endif

TerminationSignals::TerminationSignals(std::function<void()> onSignal)
    : impl_(std::make_unique<Impl>(std::move(onSignal))) {}

TerminationSignals::~TerminationSignals() = default;

} // namespace workbench
