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
class Probe final : public Event {
public:
    Probe(int& destroyed, EventType type) : Event(type), destroyed_(destroyed) {}
    ~Probe() override { ++destroyed_; }

private:
    int& destroyed_;
};

/// Writes what it hears to a shared log ("a8 " for a and event type 8), then does once what the
/// test wants.
class Actor final : public IEventListener {
public:
    Actor(std::string name, std::string& log) : name_(std::move(name)), log_(log) {}

    void onEvent(Event const* event) override {
        log_ += name_ + std::to_string(static_cast<unsigned int>(event->type())) + ' ';
        if (auto const now = std::exchange(action, nullptr)) {
            now(*event);
        }
    }

    std::function<void(Event const&)> action;

private:
    std::string name_;
    std::string& log_;
};

class ZEventQueueTest : public testing::Test {
protected:
    void post(unsigned int color) { queue->post(new ColorUpdatedEvent(nyx::ColorId(color))); }
    void postSynced(unsigned int color) { queue->post(new ColorSyncedEvent(nyx::ColorId(color))); }
    std::string take() { return std::exchange(log, {}); }

    std::unique_ptr<IEventQueue> queue = std::make_unique<ZEventQueue>();
    std::string log;
    Actor a{"a", log}, b{"b", log}, c{"c", log};
};

TEST_F(ZEventQueueTest, deliversSubscribedTypesOnceAndDeletesTheEvent) {
    EventTrace trace(*queue, {updated, synced, updated});
    post(1);
    postSynced(2);
    queue->post(new ColorEvent(nyx::ColorId(3)));
    EXPECT_EQ(trace.take(), "ColorUpdated 1\nColorSynced 2");

    queue->subscribe(nullptr, updated);
    queue->unsubscribe(nullptr);
    queue->unsubscribe(&a);
    queue->post(nullptr);
    // A number that is no kind of the library is a type like any other.
    int heard = 0;
    for (EventType const type :
         {EventType(3), EventType(13), EventType(14), EventType(99), EventType(0xFFFFFFFFu)}) {
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
    EXPECT_EQ(heard, 5);
    queue->unsubscribe(&a);
    int destroyed = 0;
    queue->post(new Probe(destroyed, EventType(99)));
    EXPECT_EQ(heard, 5) << "unsubscribing drops all types";

    zsg::post(nullptr, std::make_unique<Probe>(destroyed, EventType(99)));
    zsg::post(queue.get(), std::make_unique<Probe>(destroyed, EventType(99)));
    EXPECT_EQ(destroyed, 3);
}

TEST_F(ZEventQueueTest, nestedPostsAreDeliveredBeforeTheOuterDeliveryGoesOn) {
    for (Actor* const actor : {&a, &b}) {
        queue->subscribe(actor, updated);
        queue->subscribe(actor, synced);
    }
    a.action = [this](Event const&) {
        postSynced(1);
        log += "back ";
    };
    post(7);
    EXPECT_EQ(take(), "a8 a9 b9 back b8 ");
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
    EXPECT_EQ(take(), "a50 a50 ");
    EXPECT_EQ(destroyed, 0);

    queue->post(new Probe(destroyed, type));
    EXPECT_EQ(take(), "a50 c50 ");
    EXPECT_EQ(destroyed, 1);
    queue->unsubscribe(&a);
    queue->unsubscribe(&c);
    queue->post(new Probe(destroyed, type));
    EXPECT_EQ(take(), "");
}

#if !defined(QT_NO_DEBUG) && GTEST_HAS_DEATH_TEST
TEST_F(ZEventQueueTest, mustNotGoInsideADelivery) {
    queue->subscribe(&a, updated);
    a.action = [this](Event const&) { queue.reset(); };
    EXPECT_DEATH(post(1), "destroyed by a listener");
}
#endif

} // namespace
