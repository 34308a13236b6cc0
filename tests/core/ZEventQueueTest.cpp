#include "core/ZEventQueue.h"

#include "core/postEvent.h"
#include "support/EventTrace.h"
#include "zsg/core/Events.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

using namespace zsg;

namespace {

constexpr EventType updated = EventType::ColorUpdated;
constexpr EventType synced = EventType::ColorSynced;

/// An event that counts how often it is destroyed, of any type at all.
struct Probe final : Event {
    Probe(int& count, EventType type) : Event(type), destroyed(count) {}
    ~Probe() override { ++destroyed; }
    int& destroyed;
};

/// Writes its letter to a shared log when it hears something, then does once what the test wants.
struct Actor final : IEventListener {
    Actor(char letter, std::string& heard) : name(letter), log(heard) {}
    void onEvent(Event const* event) override {
        log += name;
        if (auto const now = std::exchange(action, nullptr)) {
            now(*event);
        }
    }
    char name;
    std::string& log;
    std::function<void(Event const&)> action;
};

class ZEventQueueTest : public testing::Test {
protected:
    std::unique_ptr<IEventQueue> queue = std::make_unique<ZEventQueue>();
    std::string log;
    Actor a{'a', log}, b{'b', log}, c{'c', log};
};

TEST_F(ZEventQueueTest, deliversSubscribedTypesOnceAndDeletesTheEvent) {
    EventTrace trace(*queue, {updated, synced, updated});
    queue->post(new ColorUpdatedEvent(nyx::ColorId(1)));
    queue->post(new ColorSyncedEvent(nyx::ColorId(2)));
    queue->post(new ColorEvent(nyx::ColorId(3)));
    EXPECT_EQ(trace.take(), "ColorUpdated 1\nColorSynced 2");

    queue->subscribe(nullptr, updated);
    queue->unsubscribe(nullptr);
    queue->unsubscribe(&a);
    queue->post(nullptr);
    // A number that is no kind of the library is a type like any other.
    int heard = 0;
    for (EventType const type : {EventType(3), EventType(14), EventType(0xFFFFFFFFu)}) {
        int destroyed = 0;
        queue->post(new Probe(destroyed, type));
        EXPECT_EQ(destroyed, 1) << "nobody listens";
        queue->subscribe(&a, type);
        a.action = [&](Event const& event) {
            EXPECT_EQ(event.type(), type);
            EXPECT_EQ(destroyed, 1) << "alive while it is delivered";
            ++heard;
        };
        queue->post(new Probe(destroyed, type));
        EXPECT_EQ(destroyed, 2);
    }
    EXPECT_EQ(heard, 3);
    queue->unsubscribe(&a);
    int destroyed = 0;
    queue->post(new Probe(destroyed, EventType(14)));
    EXPECT_EQ(heard, 3) << "unsubscribing drops all types";

    zsg::post(nullptr, std::make_unique<Probe>(destroyed, EventType(99)));
    zsg::post(queue.get(), std::make_unique<Probe>(destroyed, EventType(99)));
    EXPECT_EQ(destroyed, 3);
}

TEST_F(ZEventQueueTest, aThrowingListenerLeavesTheEventAndAUsableQueue) {
    EventType const type{50};
    int destroyed = 0;
    auto const outer = std::make_unique<Probe>(destroyed, type);
    auto const inner = std::make_unique<Probe>(destroyed, type);
    for (Actor* const actor : {&a, &b, &c}) {
        queue->subscribe(actor, type);
    }
    a.action = [&](Event const&) {
        queue->unsubscribe(&b);
        a.action = [](Event const&) { throw std::runtime_error("no"); };
        queue->post(inner.get());
    };
    EXPECT_THROW(queue->post(outer.get()), std::runtime_error);
    EXPECT_EQ(std::exchange(log, {}), "aa");
    EXPECT_EQ(destroyed, 0);

    queue->post(new Probe(destroyed, type));
    EXPECT_EQ(std::exchange(log, {}), "ac");
    EXPECT_EQ(destroyed, 1);
    queue->unsubscribe(&a);
    queue->unsubscribe(&c);
    queue->post(new Probe(destroyed, type));
    EXPECT_EQ(log, "");
}

#if !defined(QT_NO_DEBUG) && GTEST_HAS_DEATH_TEST
TEST_F(ZEventQueueTest, mustNotGoInsideADelivery) {
    queue->subscribe(&a, updated);
    a.action = [this](Event const&) { queue.reset(); };
    EXPECT_DEATH(queue->post(new ColorUpdatedEvent({})), "destroyed by a listener");
}
#endif

} // namespace
