#ifndef Q_MOC_RUN // which does not read a file that begins with the standard library's concepts
    #include "zsg/core/Events.h"
#endif

#include "Listener.h"
#include "Rows.h"
#include "zsg/core/IEventQueue.h"
#include "zsg/core/ISceneGraph.h"

#include <QObject>
#include <boost/signals2/signal.hpp>

#include <cstddef>
#include <initializer_list>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

using bench::Listener;
using zsg::EventType;

class Sender : public QObject {
    Q_OBJECT
signals:
    void colorUpdated(unsigned int id);
    void colorSynced(unsigned int id);
    void colorCreated(unsigned int id);
    void colorwaySynced(unsigned int id);
};

class Receiver : public QObject {
    Q_OBJECT
public:
    void onColor(unsigned int id) { sum += id; }
    std::size_t sum = 0;
};

/// A root's queue with some listeners of ColorUpdated and some of another type.
class Queue {
public:
    Queue(std::size_t interested, std::size_t others)
        : root_(zsg::ISceneGraph::create({})), listeners_(interested + others) {
        for (std::size_t i = 0; i < listeners_.size(); ++i) {
            get().subscribe(&listeners_[i],
                            i < interested ? EventType::ColorUpdated : EventType::ColorCreated);
        }
    }

    zsg::IEventQueue& get() { return *root_->eventQueue(); }

private:
    std::unique_ptr<zsg::ISceneGraph> root_;
    std::vector<Listener> listeners_;
};

void post(benchmark::State& state, std::size_t interested, std::size_t all) {
    Queue queue(interested, all - interested);
    unsigned int id = 0;
    for (auto _ : state) {
        queue.get().post(new zsg::ColorUpdatedEvent(nyx::ColorId(++id)));
    }
}

void postQt(benchmark::State& state, std::size_t count) {
    Sender sender;
    std::vector<std::unique_ptr<Receiver>> receivers;
    for (std::size_t i = 0; i < count; ++i) {
        receivers.push_back(std::make_unique<Receiver>());
        QObject::connect(&sender, &Sender::colorUpdated, receivers.back().get(), &Receiver::onColor,
                         Qt::DirectConnection);
    }
    unsigned int id = 0;
    for (auto _ : state) {
        emit sender.colorUpdated(++id);
    }
}

void postBoost(benchmark::State& state, std::size_t count) {
    boost::signals2::signal<void(unsigned int)> signal;
    std::vector<std::size_t> sums(count);
    for (std::size_t& sum : sums) {
        signal.connect([&sum](unsigned int id) { sum += id; });
    }
    unsigned int id = 0;
    for (auto _ : state) {
        signal(++id);
    }
}

// What any delivery of a heap event through an interface has to do.
void postFloor(benchmark::State& state, std::size_t count) {
    std::vector<Listener> listeners(count);
    std::vector<zsg::IEventListener*> list;
    for (Listener& listener : listeners) {
        list.push_back(&listener);
    }
    unsigned int id = 0;
    for (auto _ : state) {
        auto* const event = new zsg::ColorUpdatedEvent(nyx::ColorId(++id));
        benchmark::DoNotOptimize(list.data());
        for (zsg::IEventListener* const listener : list) {
            listener->onEvent(event);
        }
        delete event;
    }
}

constexpr std::initializer_list<EventType> fourTypes{
    EventType::ColorUpdated, EventType::ColorSynced, EventType::ColorCreated,
    EventType::ColorwaySynced};

void subscribe(benchmark::State& state, std::size_t others) {
    Queue queue(0, 0);
    std::vector<Listener> standing(others);
    for (Listener& listener : standing) {
        for (EventType const type : fourTypes) {
            queue.get().subscribe(&listener, type);
        }
    }
    Listener listener;
    for (auto _ : state) {
        for (EventType const type : fourTypes) {
            queue.get().subscribe(&listener, type);
        }
        queue.get().unsubscribe(&listener);
    }
}

void connectAll(Sender const& sender, Receiver const& receiver) {
    for (auto const signal : {&Sender::colorUpdated, &Sender::colorSynced, &Sender::colorCreated,
                              &Sender::colorwaySynced}) {
        QObject::connect(&sender, signal, &receiver, &Receiver::onColor, Qt::DirectConnection);
    }
}

void subscribeQt(benchmark::State& state, std::size_t others) {
    Sender sender;
    std::vector<std::unique_ptr<Receiver>> standing;
    for (std::size_t i = 0; i < others; ++i) {
        standing.push_back(std::make_unique<Receiver>());
        connectAll(sender, *standing.back());
    }
    Receiver receiver;
    for (auto _ : state) {
        connectAll(sender, receiver);
        sender.disconnect(&receiver);
    }
}

bool const registered = [] {
    struct {
        std::size_t count;
        char const* against;
        double ratio;
    } const posts[] = {
        // A compiler can see through the one call of a signal on some processors.
        {1, "floor", 1.4},
        {10, "Qt direct signal", 0.5},
        {100, "Qt direct signal", 0.25},
        {1000, "Qt direct signal", 0.25},
    };
    for (auto const& [count, against, ratio] : posts) {
        std::string const workload =
            "post, " + std::to_string(count) + " of " + std::to_string(count);
        bench::contestant("3a", workload, bench::ours,
                          [n = count](benchmark::State& state) { post(state, n, n); });
        bench::contestant("3a", workload, "Qt direct signal",
                          [n = count](benchmark::State& state) { postQt(state, n); });
        bench::contestant("3a", workload, "Boost.Signals2",
                          [n = count](benchmark::State& state) { postBoost(state, n); });
        bench::contestant("3a", workload, "floor",
                          [n = count](benchmark::State& state) { postFloor(state, n); });
        bench::target({"3a", workload, against, ratio});
    }

    std::string const fewest = "post, 10 of 10";
    for (std::size_t const all : {10u, 100u, 1000u, 10000u}) {
        std::string const workload = "post, 10 of " + std::to_string(all);
        bench::contestant("3b", workload, bench::ours,
                          [all](benchmark::State& state) { post(state, 10, all); });
        if (all > 10) {
            bench::target({"3b", workload, bench::ours, 1.15, fewest});
        }
    }

    auto const beside = [](std::size_t others) {
        return "subscribe 4 types and unsubscribe, beside " + std::to_string(others);
    };
    for (std::size_t const others : {1u, 10u, 100u, 1000u, 10000u}) {
        bench::contestant("3c", beside(others), bench::ours,
                          [others](benchmark::State& state) { subscribe(state, others); });
        if (others > 1) {
            bench::target({"3c", beside(others), bench::ours, 1.5, beside(1)});
        }
    }
    for (std::size_t const others : {1u, 1000u}) {
        bench::contestant("3c", beside(others), "Qt connect",
                          [others](benchmark::State& state) { subscribeQt(state, others); });
        bench::target({"3c", beside(others), "Qt connect", others == 1 ? 0.40 : 0.05});
    }
    return true;
}();

} // namespace

#include "events_bench.moc"
