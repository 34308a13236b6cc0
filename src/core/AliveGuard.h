#pragma once

#include <QtGlobal>

#include <memory>
#include <utility>

namespace zsg {

/// A member of an object that others refer to without keeping it alive, such as undo commands,
/// which live on the application's stack. It shares with them whether the object is still there.
/// Main thread.
class AliveGuard {
public:
    struct State {
        bool isAlive = true;
        bool hasWarned = false;
    };

    AliveGuard() = default;
    ~AliveGuard() { state_->isAlive = false; }
    AliveGuard(AliveGuard const&) = delete;
    AliveGuard& operator=(AliveGuard const&) = delete;

    [[nodiscard]] std::shared_ptr<State> const& state() const { return state_; }

private:
    std::shared_ptr<State> state_ = std::make_shared<State>();
};

/// A borrowed pointer to an object that has an AliveGuard.
template <class T>
class GuardedPointer {
public:
    GuardedPointer(T* object, AliveGuard const& guard) : object_(object), state_(guard.state()) {}

    /// The object, or null when it is gone. The first who asks in vain, of all that refer to the
    /// object, writes a warning, for somebody has ended things in the wrong order.
    [[nodiscard]] T* get() const {
        if (state_->isAlive) {
            return object_;
        }
        if (!std::exchange(state_->hasWarned, true)) {
            qWarning("zscenegraph: an undo command was run after the scene graph that it edits had "
                     "gone; clear the undo stack first");
        }
        return nullptr;
    }

    /// Whether both mean one object, alive or not.
    [[nodiscard]] bool means(GuardedPointer const& other) const { return state_ == other.state_; }

private:
    T* object_;
    std::shared_ptr<AliveGuard::State> state_;
};

} // namespace zsg
