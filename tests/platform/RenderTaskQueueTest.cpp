#include "nyxembedded/RenderTaskQueue.h"

#include "ztask/ZTask.h"

#include <gmock/gmock.h>

#include <functional>
#include <future>
#include <memory>
#include <thread>
#include <utility>
#include <vector>

namespace {

using nyx::embedded::RenderTaskQueue;
using testing::ElementsAre;
using Mode = RenderTaskQueue::Mode;

class Call final : public ZTask {
public:
    Call(std::function<void()> function, bool deleteOnDone) : function_(std::move(function)) {
        setDeleteOnDone(deleteOnDone);
    }
    void run() override { function_(); }

private:
    std::function<void()> function_;
};

void add(ZTaskQueue& queue, std::function<void()> function) {
    queue.addBlockingRenderTask(new Call(std::move(function), true));
}

class RenderTaskQueueTest : public testing::TestWithParam<Mode> {
protected:
    RenderTaskQueue queue{GetParam()};
    std::vector<int> ran; // written by tasks, read after waiting
};

TEST_P(RenderTaskQueueTest, StepsThroughAPausedQueue) {
    queue.pause();
    EXPECT_FALSE(queue.step()) << "nothing is there";
    queue.addBlockingRenderTask(nullptr);
    for (int i = 1; i <= 3; ++i) {
        add(queue, [this, i] { ran.push_back(i); });
    }
    add(queue, [this] {
        // From inside a task these return at once instead of waiting for themselves.
        queue.waitIdle();
        EXPECT_FALSE(queue.step());
        add(queue, [this] { ran.push_back(5); });
        ran.push_back(4);
    });
    queue.waitIdle();
    EXPECT_TRUE(queue.isPaused());
    EXPECT_EQ(queue.pending(), 4U);
    EXPECT_TRUE(queue.step());
    EXPECT_THAT(ran, ElementsAre(1));
    EXPECT_TRUE(queue.step());
    EXPECT_THAT(ran, ElementsAre(1, 2));
    queue.resume();
    queue.waitIdle();
    EXPECT_THAT(ran, ElementsAre(1, 2, 3, 4, 5));
}

TEST_P(RenderTaskQueueTest, DeletesWhatItOwnsAndRunsWhatIsLeft) {
    auto const alive = std::make_shared<int>();
    Call kept([this, alive] { ran.push_back(2); }, false);
    {
        RenderTaskQueue ending(GetParam());
        ending.pause();
        add(ending, [this, alive] { ran.push_back(1); });
        ending.addBlockingRenderTask(&kept);
        ending.addBlockingRenderTask(&kept);
        add(ending, [&] { add(ending, [&] { ran.push_back(3); }); });
    }
    EXPECT_THAT(ran, ElementsAre(1, 2, 2, 3));
    EXPECT_EQ(alive.use_count(), 2) << "the one that is kept and this";
}

TEST_P(RenderTaskQueueTest, KeepsEachAddersOrderAndRunsOneAtATime) {
    constexpr int adders = 3;
    constexpr int each = 500;
    std::vector<int> last(adders, -1);
    int running = 0; // not atomic: it is what one at a time is for
    std::vector<std::thread> threads;
    for (int a = 0; a < adders; ++a) {
        threads.emplace_back([&, a] {
            for (int i = 0; i < each; ++i) {
                add(queue, [&, a, i] {
                    EXPECT_EQ(++running, 1);
                    EXPECT_EQ(std::exchange(last[static_cast<std::size_t>(a)], i), i - 1);
                    --running;
                });
                if (i % 100 == 0) {
                    queue.pause();
                    queue.step();
                    queue.resume();
                    queue.waitIdle();
                }
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    queue.waitIdle();
    EXPECT_THAT(last, testing::Each(each - 1));
}

INSTANTIATE_TEST_SUITE_P(Modes, RenderTaskQueueTest, testing::Values(Mode::Threaded, Mode::Manual));

TEST(RenderThreadTest, AddingNeverWaitsForATask) {
    RenderTaskQueue queue;
    std::promise<void> begun;
    std::promise<void> mayEnd;
    std::thread::id runner;
    add(queue, [&] {
        runner = std::this_thread::get_id();
        begun.set_value();
        mayEnd.get_future().wait();
    });
    begun.get_future().wait();
    bool second = false;
    add(queue, [&] { second = std::this_thread::get_id() == runner; });
    EXPECT_EQ(queue.pending(), 1U);
    EXPECT_FALSE(queue.step()) << "only a paused queue steps";
    queue.pause();
    mayEnd.set_value();
    queue.waitIdle();
    EXPECT_EQ(queue.pending(), 1U) << "the task under way has ended, the next waits";
    EXPECT_TRUE(queue.step());
    EXPECT_TRUE(second);
    EXPECT_NE(runner, std::this_thread::get_id());
}

} // namespace
