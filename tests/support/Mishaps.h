#pragma once

#include "support/Allocations.h"
#include "zsg/core/Event.h"
#include "zsg/core/IEventListener.h"
#include "zsg/core/IEventQueue.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

/// What ends operations half way: memory that runs out, and listeners that throw.
namespace Mishaps {

enum class Kind { Allocation, Event, EveryEventFromThen };

/// Throws std::runtime_error at its event number `number` (from 0), or at all from that one on.
class Thrower final : public zsg::IEventListener {
public:
    Thrower(zsg::IEventQueue& queue, std::size_t number, bool always, bool& happened)
        : queue_(queue), number_(number), always_(always), happened_(happened) {
        for (zsg::EventType const type : zsg::allEventTypes) {
            queue_.subscribe(this, type);
        }
    }
    ~Thrower() override {
        queue_.unsubscribe(this);
        happened_ = !left_.empty();
    }

    void onEvent(zsg::Event const* event) override {
        std::size_t const here = heard_++;
        if (here == number_ || (always_ && here > number_)) {
            left_.emplace_back(event); // nobody deletes an event whose listener throws
            throw std::runtime_error("listener");
        }
    }

private:
    zsg::IEventQueue& queue_;
    std::size_t number_;
    bool always_;
    bool& happened_;
    std::size_t heard_ = 0;
    std::vector<std::unique_ptr<zsg::Event const>> left_;
};

using Operations = std::vector<std::function<void()>>;

/// Has each operation of a Scene go wrong at each moment in turn, every time in a new Scene. It has
/// `operations()`, the queue of its `events()`, and `check(operation)`, called when one went wrong:
/// the exception has reached the caller by then.
template <class Scene>
void inTurn() {
    for (Kind const kind : {Kind::Allocation, Kind::Event, Kind::EveryEventFromThen}) {
        std::size_t count = 1;
        for (std::size_t operation = 0; operation < count; ++operation) {
            bool happened = true;
            for (std::size_t number = 0; happened; ++number) {
                ASSERT_LT(number, 10'000u) << "operation " << operation << " has no end";
                SCOPED_TRACE("kind " + std::to_string(static_cast<int>(kind)) + ", operation " +
                             std::to_string(operation) + ", at " + std::to_string(number));
                Scene scene;
                Operations const operations = scene.operations();
                count = operations.size();
                bool thrown = false;
                try {
                    if (kind == Kind::Allocation) {
                        Allocations::Failure const failure(number, happened);
                        operations[operation]();
                    } else {
                        Thrower const thrower(scene.events(), number,
                                              kind == Kind::EveryEventFromThen, happened);
                        operations[operation]();
                    }
                } catch (std::bad_alloc const&) {
                    thrown = true;
                } catch (std::runtime_error const&) {
                    thrown = true;
                }
                if (thrown) {
                    scene.check(operation);
                }
            }
        }
    }
}

} // namespace Mishaps
