#include "zcore/ZMainThreadCallback.h"

#include "zsg/core/IEventQueue.h"
#include "zsg/core/ISceneGraph.h"

#include "nyxembedded/Renderer.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QPointer>
#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <shared_mutex>
#include <thread>
#include <utility>
#include <vector>

namespace {

TEST(ZMainThreadCallbackTest, RunsOnceAndDisposesOfItself) {
    for (bool const withApi : {true, false}) {
        nyx::embedded::Renderer renderer;
        auto parent = std::make_unique<QObject>();
        int runs = 0;
        auto const make = [&](std::function<void()> function) {
            return QPointer<QObject>(new ZMainThreadCallback(withApi ? renderer.api() : nullptr,
                                                             std::move(function), parent.get()));
        };

        auto const first = make([&] { ++runs; });
        auto const empty = make(nullptr);
        EXPECT_EQ(runs, 0) << "never at once";
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        EXPECT_EQ(runs, 1);
        EXPECT_TRUE(first.isNull() && empty.isNull());

        auto const ends = make([&, text = std::vector<int>(100, 1)] {
            parent.reset();
            runs += text.back();
        });
        auto const dropped = make([&] { runs += 100; });
        QCoreApplication::processEvents();
        EXPECT_EQ(runs, 2) << "the first ended the parent, and the second with it";
        EXPECT_TRUE(ends.isNull() && dropped.isNull());
    }
}

struct Case {
    bool withApi;
    bool keepRoot; ///< else roots come and go meanwhile
};

TEST(ZMainThreadCallbackTest, ComesFromAnyThread) {
    for (Case const& run :
         {Case{false, true}, Case{true, true}, Case{false, false}, Case{true, false}}) {
        constexpr int workerCount = 4;
        constexpr int each = 1000;
        nyx::embedded::Renderer renderer;
        nyxRT_api* const api = run.withApi ? renderer.api() : nullptr;
        zsg::SceneGraphPars pars;
        pars.rtApi = api;
        auto root = zsg::ISceneGraph::create(pars);
        int generation = 0;
        std::shared_mutex mutex; // over the two
        int runs = 0;
        int astray = 0; // on another thread, or for a root that is no more
        auto const count = [&, main = std::this_thread::get_id()](int made) {
            ++runs;
            astray += std::this_thread::get_id() != main || made != generation ? 1 : 0;
        };
        auto const held = std::make_shared<int>();
        std::atomic<int> working{workerCount};
        std::vector<std::thread> workers;
        for (int i = 0; i < workerCount; ++i) {
            workers.emplace_back([&] {
                for (int n = 0; n < each; ++n) {
                    std::shared_lock const guard(mutex);
                    new ZMainThreadCallback(
                        api, [&count, held, made = generation] { count(made); },
                        root->eventQueue());
                }
                --working;
            });
        }
        while (working > 0) {
            QCoreApplication::processEvents();
            if (!run.keepRoot) {
                std::unique_lock const guard(mutex);
                root.reset();
                root = zsg::ISceneGraph::create(pars);
                ++generation;
            }
        }
        for (std::thread& worker : workers) {
            worker.join();
        }
        for (QDeadlineTimer end(10000); held.use_count() > 1 && !end.hasExpired();) {
            QCoreApplication::processEvents();
        }
        EXPECT_EQ(held.use_count(), 1) << "every function ran or was dropped";
        EXPECT_EQ(astray, 0);
        if (run.keepRoot) {
            EXPECT_EQ(runs, workerCount * each);
            EXPECT_TRUE(root->eventQueue()->children().isEmpty());
        }
    }
}

} // namespace
