// Painting: a rename (row 4e), the growth of layer edits and of surfaces, and tasks for the render
// thread.

#include "nyxembedded/Painting.h"

#include "Rows.h"
#include "zsg/core/Events.h"
#include "zsg/core/IEventQueue.h"
#include "zsg/core/ISceneGraph.h"
#include "zsg/painting/IPainter.h"
#include "zsg/painting/IPainterManager.h"
#include "zsg/painting/IPainterSurface.h"

#include "nyxembedded/Host.h"
#include "nyxrender/nyx_memory.h"
#include "zcore/ZUndoCommand.h"
#include "ztask/ZTask.h"

#include <QCoreApplication>
#include <QRunnable>
#include <QThreadPool>

#include <algorithm>
#include <condition_variable>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace {

using nyx::embedded::RenderTaskQueue;

/// A host with a surface of that many layers, whose tasks run when they are drained.
struct Easel {
    explicit Easel(std::size_t layers) {
        host.undoStack().setLimit(1000);
        surface = painter.surface(painter.createSurface(64));
        while (surface->layers().size() < layers) {
            surface->addLayer(0);
        }
        drain();
        host.undoStack().clear();
    }
    void drain() { host.taskQueue().waitIdle(); }

    nyx::embedded::Host host{RenderTaskQueue::Mode::Manual};
    zsg::IPainter& painter = *host.root().painterManager()->painter();
    zsg::IPainterSurface* surface = nullptr;
};

/// Surfaces of thousands of layers take long to make: one of each size for all cases.
Easel& easel(std::size_t layers) {
    static std::map<std::size_t, std::unique_ptr<Easel>> easels;
    auto& made = easels[layers];
    if (!made) {
        made = std::make_unique<Easel>(layers);
    }
    made->host.undoStack().clear();
    return *made;
}

class NoEdit final : public ZUndoCommand {
public:
    NoEdit(QString const& text, QString before, QString after)
        : ZUndoCommand(ZCommandId::PaintLayerName, text),
          before_(std::move(before)),
          after_(std::move(after)) {}
    bool undo() override { return true; }
    bool redo() override { return true; }

private:
    QString before_, after_;
};

// The scene keeps every name, so that these runs must not be without end.
constexpr int namings = 100'000;

void rename() {
    std::string const workload = "rename, 32 layers";
    static QString const names[] = {"Highlights", "Shadows"};
    bench::contestant("4e", workload, bench::ours, [](benchmark::State& state) {
        Easel& e = easel(32);
        unsigned next = 0;
        for (auto _ : state) {
            e.surface->setLayerName(next % 32, names[next / 32 % 2]);
            ++next;
        }
    })->Iterations(namings);
    bench::contestant("4e", workload, "composite floor", [](benchmark::State& state) {
        Easel& e = easel(32);
        nyxScene& scene = *e.host.renderer().scene();
        unsigned next = 0;
        for (auto _ : state) {
            QString const& name = names[next++ / 32 % 2];
            e.host.undoStack().push(new NoEdit(
                QCoreApplication::translate("ZLayerNameCommand", "3D Paint rename layer"),
                QString::fromUtf8("Highlights"), name));
            benchmark::DoNotOptimize(nyx_string_dup(scene, name.toUtf8().constData()));
            e.host.root().eventQueue()->post(new zsg::PaintLayersUpdatedEvent(e.surface->id()));
        }
    })->Iterations(namings);
    bench::target({"4e", workload, "composite floor", 3});
}

/// The list work alone that an edit cannot do without, in a plain list of the same records.
struct PlainList {
    explicit PlainList(Easel& e) : layers(e.surface->layers()) {}
    std::vector<nyxLayerInfo>::iterator find(std::uint32_t id) {
        return std::find_if(layers.begin(), layers.end(),
                            [id](nyxLayerInfo const& layer) { return layer.id == id; });
    }
    void add() {
        int largest = 0;
        for (nyxLayerInfo const& layer : layers) {
            if (layer.name && std::strncmp(layer.name, "Layer ", 6) == 0) {
                largest = std::max(largest, std::atoi(layer.name + 6));
            }
        }
        benchmark::DoNotOptimize(largest);
        layers.insert(layers.begin(), layers.front());
    }
    void moveEndToEnd() {
        auto const to = find(layers.back().id);
        nyxLayerInfo const moved = layers.front();
        std::copy(layers.begin() + 1, to + 1, layers.begin());
        *to = moved;
    }
    void toggle() {
        auto const here = find(layers[layers.size() / 2].id);
        here->deleted = !here->deleted;
        benchmark::DoNotOptimize(layers.data());
    }
    std::vector<nyxLayerInfo> layers;
};

void growth(std::size_t size, std::string const& layers) {
    std::string const plain = "plain list";
    auto const row = [&](std::string const& workload, std::string const& name, auto prepare,
                         auto action) {
        return bench::contestant("P1", workload + layers, name,
                                 [size, prepare, action](benchmark::State& state) {
                                     Easel& e = easel(size);
                                     auto prepared = prepare(e);
                                     for (auto _ : state) {
                                         action(e, prepared);
                                         e.drain();
                                     }
                                 });
    };
    auto const nothing = [](Easel&) { return 0; };
    auto const list = [](Easel& e) { return PlainList(e); };
    auto const middle = static_cast<unsigned>(size / 2);
    auto const last = static_cast<unsigned>(size - 1);

    // Layers are never removed, and so each ten are added to a copy.
    std::string const adding = "add 10, ";
    bench::contestant("P1", adding + layers, bench::ours, [size](benchmark::State& state) {
        Easel& e = easel(size);
        for (auto _ : state) {
            state.PauseTiming();
            zsg::IPainterSurface* const copy =
                e.painter.surface(e.painter.createSurface(64, e.surface->id()));
            state.ResumeTiming();
            for (int i = 0; i < 10; ++i) {
                copy->addLayer(0);
            }
            e.drain();
        }
    })->Iterations(10);
    row(adding, plain, list, [](Easel&, PlainList& l) {
        for (int i = 0; i < 10; ++i) {
            l.add();
        }
        l.layers.erase(l.layers.begin(), l.layers.begin() + 10);
    })->Iterations(10);

    row("rename, ", bench::ours, nothing, [middle](Easel& e, int) {
        e.surface->setLayerName(middle, "Highlights");
    })->Iterations(namings / 10);
    row("rename, ", plain, list, [](Easel&, PlainList& l) { l.toggle(); });
    row("move end to end, ", bench::ours, nothing,
        [last](Easel& e, int) { e.surface->moveLayer(0, last); });
    row("move end to end, ", plain, list, [](Easel&, PlainList& l) { l.moveEndToEnd(); });
    row("delete and undo, ", bench::ours, nothing, [middle](Easel& e, int) {
        e.surface->setLayerDeleted(middle, true);
        e.host.undoStack().undo();
    });
    row("delete and undo, ", plain, list, [](Easel&, PlainList& l) {
        l.toggle();
        l.toggle();
    });
    auto const edited = [last](Easel& e) {
        e.surface->moveLayer(0, last);
        return 0;
    };
    row("undo and redo of a move, ", bench::ours, edited, [](Easel& e, int) {
        e.host.undoStack().undo();
        e.host.undoStack().redo();
    });
    row("undo and redo of a move, ", plain, list, [](Easel&, PlainList& l) {
        l.moveEndToEnd();
        l.moveEndToEnd();
    });
}

/// One edit of one surface, found by its id, whatever others there are.
void amongOthers() {
    std::string const edit = "show or hide a layer, ";
    std::string const alone = edit + "no other surface";
    auto const row = [](std::string const& workload, int others) {
        bench::contestant("P6", workload, bench::ours, [others](benchmark::State& state) {
            Easel e(3);
            for (int i = 0; i < others; ++i) {
                e.painter.createSurface(64);
            }
            nyx::SurfaceId const id = e.surface->id();
            bool visible = false;
            for (auto _ : state) {
                e.painter.surface(id)->setLayerVisibility(1, visible);
                visible = !visible;
                e.drain();
            }
        });
    };
    row(alone, 0);
    row(edit + "10,000 other surfaces", 10'000);
    bench::target({"P6", edit + "10,000 other surfaces", bench::ours, 1.15, alone});
}

/// What a renderer made is taken up; nothing of it is known yet.
void reload() {
    std::string const workload = "reload of 10,000 surfaces";
    bench::contestant("P7", workload, bench::ours,
                      [](benchmark::State& state) {
                          for (auto _ : state) {
                              state.PauseTiming();
                              auto host = std::make_unique<nyx::embedded::Host>(
                                  RenderTaskQueue::Mode::Manual);
                              for (int i = 0; i < 10'000; ++i) {
                                  host->renderer().painting().addSurface("", 64);
                              }
                              state.ResumeTiming();
                              host->root().painterManager()->painter()->reload();
                              state.PauseTiming();
                              host.reset();
                              state.ResumeTiming();
                          }
                      })
        ->Iterations(3)
        ->Unit(benchmark::kMillisecond);
}

/// The least that a queue with a thread needs.
class PlainQueue {
public:
    ~PlainQueue() {
        add(nullptr);
        thread_.join();
    }
    void add(std::unique_ptr<ZTask> task) {
        std::lock_guard const guard(mutex_);
        tasks_.push_back(std::move(task));
        changed_.notify_all();
    }
    void waitIdle() {
        std::unique_lock guard(mutex_);
        changed_.wait(guard, [this] { return tasks_.empty(); });
    }

private:
    void work() {
        std::unique_lock guard(mutex_);
        for (;;) {
            changed_.wait(guard, [this] { return !tasks_.empty(); });
            std::unique_ptr<ZTask> task = std::move(tasks_.front());
            if (!task) {
                return;
            }
            guard.unlock();
            task->run();
            task.reset();
            guard.lock();
            tasks_.pop_front();
            if (tasks_.empty()) {
                changed_.notify_all();
            }
        }
    }
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<std::unique_ptr<ZTask>> tasks_;
    std::thread thread_{[this] { work(); }};
};

class Count final : public ZTask, public QRunnable {
public:
    explicit Count(std::size_t& count) : count_(count) { setDeleteOnDone(true); }
    void run() override { ++count_; }

private:
    std::size_t& count_;
};

/// From one thread to another until all are done, by the clock on the wall.
void tasks() {
    static constexpr std::size_t perTurn = 10'000;
    std::string const workload = "10,000 tasks to the render thread";
    auto const row = [&](std::string const& name, auto make, auto add, auto wait) {
        bench::contestant("P2", workload, name, [=](benchmark::State& state) {
            std::size_t count = 0;
            auto const queue = make();
            for (auto _ : state) {
                for (std::size_t i = 0; i < perTurn; ++i) {
                    add(*queue, new Count(count));
                }
                wait(*queue);
            }
            state.counters["tasks"] =
                benchmark::Counter(static_cast<double>(count), benchmark::Counter::kIsRate);
        })->UseRealTime();
    };
    row(
        bench::ours, [] { return std::make_unique<RenderTaskQueue>(); },
        [](RenderTaskQueue& q, Count* task) { q.addBlockingRenderTask(task); },
        [](RenderTaskQueue& q) { q.waitIdle(); });
    row(
        "mutex + deque", [] { return std::make_unique<PlainQueue>(); },
        [](PlainQueue& q, Count* task) { q.add(std::unique_ptr<ZTask>(task)); },
        [](PlainQueue& q) { q.waitIdle(); });
    row(
        "QThreadPool",
        [] {
            auto pool = std::make_unique<QThreadPool>();
            pool->setMaxThreadCount(1);
            return pool;
        },
        [](QThreadPool& q, Count* task) { q.start(task); },
        [](QThreadPool& q) { q.waitForDone(); });
}

[[maybe_unused]] bool const registered = [] {
    rename();
    growth(10, "10 layers");
    growth(100, "100 layers");
    growth(1000, "1,000 layers");
    growth(10'000, "10,000 layers");
    amongOthers();
    reload();
    tasks();
    return true;
}();

} // namespace
