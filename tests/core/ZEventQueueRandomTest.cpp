#include "core/ZEventQueue.h"
#include "zsg/core/Events.h"
#include "zsg/core/IEventListener.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <deque>
#include <random>
#include <vector>

using namespace zsg;

namespace {

constexpr std::size_t typeCount = 4;
constexpr std::size_t listenerCount = 40;
constexpr std::array<EventType, typeCount> types{EventType::ColorUpdated, EventType::ColorSynced,
                                                 EventType(14), EventType(4000)};

class AnyEvent final : public Event {
public:
    explicit AnyEvent(EventType type) : Event(type) {}
};

/// Random subscriptions, posts and departures, from outside and from listeners, against a model
/// that knows for each listener and type since when it is subscribed.
class Model {
public:
    explicit Model(unsigned int seed) : random_(seed) {
        for (std::size_t i = 0; i < listenerCount; ++i) {
            listeners_.emplace_back(*this, i);
        }
    }

    void step() {
        std::size_t const who = pick(listenerCount);
        std::size_t const type = pick(typeCount);
        switch (pick(4)) {
        case 0:
        case 1:
            queue_.subscribe(&listeners_[who], types[type]);
            if (since_[who][type] == 0) {
                since_[who][type] = ++clock_;
            }
            break;
        case 2:
            queue_.unsubscribe(&listeners_[who]);
            since_[who] = {};
            break;
        default:
            post(type);
        }
    }

private:
    struct Listener final : IEventListener {
        Listener(Model& model, std::size_t index) : model_(model), index_(index) {}
        void onEvent(Event const* event) override { model_.heard(index_, *event); }
        Model& model_;
        std::size_t index_;
    };
    struct Delivery {
        Event const* event;
        std::size_t type;
        std::size_t start;
        std::array<bool, listenerCount> done{};
    };

    std::size_t pick(std::size_t count) { return random_() % count; }

    bool owed(Delivery const& delivery, std::size_t who) const {
        std::size_t const since = since_[who][delivery.type];
        return since != 0 && since <= delivery.start && !delivery.done[who];
    }

    void post(std::size_t type) {
        if (running_.size() == 4) {
            return;
        }
        auto* const event = new AnyEvent(types[type]);
        running_.push_back({event, type, clock_, {}});
        queue_.post(event);
        for (std::size_t who = 0; who < listenerCount; ++who) {
            EXPECT_FALSE(owed(running_.back(), who)) << "listener " << who << " was left out";
        }
        running_.pop_back();
    }

    void heard(std::size_t who, Event const& event) {
        ++heard_;
        ASSERT_EQ(&event, running_.back().event) << "not depth first";
        EXPECT_TRUE(owed(running_.back(), who)) << "listener " << who << " got it unasked or twice";
        running_.back().done[who] = true;
        for (std::size_t i = pick(4); i-- > 0;) {
            step();
        }
    }

public:
    std::size_t heard_ = 0;

private:
    std::mt19937 random_;
    ZEventQueue queue_;
    std::deque<Listener> listeners_;
    std::deque<Delivery> running_;
    std::size_t clock_ = 0;
    std::array<std::array<std::size_t, typeCount>, listenerCount> since_{};
};

TEST(EventDelivery, randomSubscriptionsAndNestedPostsKeepThePromise) {
    for (unsigned int seed = 1; seed <= 8; ++seed) {
        SCOPED_TRACE(seed);
        Model model(seed);
        for (int i = 0; i < 500 && !testing::Test::HasFailure(); ++i) {
            model.step();
        }
        EXPECT_GT(model.heard_, 500u);
    }
}

} // namespace
