#pragma once

#include <exception>

namespace zsg {

/// Runs steps that do not depend on each other to the last, and passes on what the first of them
/// that failed has thrown. A listener may throw at every event: what is undone, or done without an
/// undo stack that would take it back, must not stop half way for that.
class FirstException {
public:
    template <class Step>
    void keep(Step const& step) {
        try {
            step();
        } catch (...) {
            if (!thrown_) {
                thrown_ = std::current_exception();
            }
        }
    }
    void pass() const {
        if (thrown_) {
            std::rethrow_exception(thrown_);
        }
    }

private:
    std::exception_ptr thrown_;
};

} // namespace zsg
