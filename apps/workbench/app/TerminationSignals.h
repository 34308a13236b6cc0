#pragma once

#include <functional>
#include <memory>

namespace workbench {

/// Has a function called in the event loop when the process is asked to end (SIGTERM, SIGHUP,
/// SIGINT), for as long as it lives; one at a time. Elsewhere than on Unix it does nothing.
class TerminationSignals {
public:
    explicit TerminationSignals(std::function<void()> onSignal);
    ~TerminationSignals();
    TerminationSignals(TerminationSignals const&) = delete;
    TerminationSignals& operator=(TerminationSignals const&) = delete;

private:
    class Impl;
    std::unique_ptr<Impl> impl_;
};

} // namespace workbench
