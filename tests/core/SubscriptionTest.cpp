#include "zsg/core/Subscription.h"

#include "core/ZEventQueue.h"
#include "zsg/core/Events.h"
#include "zsg/core/IEventListener.h"

#include <gtest/gtest.h>

#include <memory>
#include <new>
#include <optional>
#include <type_traits>
#include <utility>

using namespace zsg;

namespace {

class Counter final : public IEventListener {
public:
    void onEvent(Event const*) override { ++count; }
    int count = 0;
};

/// Runs out of memory at the second subscription.
class FailingQueue final : public IEventQueue {
public:
    void subscribe(IEventListener*, EventType) override {
        if (++subscribed == 2) {
            throw std::bad_alloc();
        }
    }
    void unsubscribe(IEventListener*) override { subscribed = 0; }
    void post(Event*) override {}
    int subscribed = 0;
};

TEST(Subscription, lastsAsLongAsItsOwner) {
    static_assert(!std::is_copy_constructible_v<Subscription>);
    ZEventQueue queue;
    Counter first;
    Counter second;
    auto const heard = [&](Counter& counter) {
        counter.count = 0;
        queue.post(new LightLayerSyncedEvent());
        queue.post(new CMFSchemaChangedEvent());
        return counter.count;
    };
    {
        Subscription one(queue, first, {EventType::LightLayerSynced, EventType::CMFSchemaChanged});
        EXPECT_EQ(heard(first), 2);
        std::optional<Subscription> moved(std::move(one));
        EXPECT_EQ(heard(first), 2);
        one = Subscription(queue, second, {EventType::CMFSchemaChanged});
        EXPECT_EQ(heard(second), 1);
        one = std::move(*moved);
        EXPECT_EQ(heard(second), 0) << "assigning ends what was there";
        moved.reset();
        EXPECT_EQ(heard(first), 2);
    }
    EXPECT_EQ(heard(first), 0);
}

TEST(Subscription, survivesItsQueueAndAFailingOne) {
    Counter counter;
    auto queue = std::make_unique<ZEventQueue>();
    Subscription const orphan(*queue, counter, {EventType::ColorUpdated});
    queue.reset();

    FailingQueue failing;
    EXPECT_THROW(Subscription(failing, counter, {EventType::ColorUpdated, EventType::ColorSynced}),
                 std::bad_alloc);
    EXPECT_EQ(failing.subscribed, 0) << "what had been subscribed is taken back";
}

} // namespace
