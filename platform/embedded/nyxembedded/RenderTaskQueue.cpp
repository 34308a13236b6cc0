#include "nyxembedded/RenderTaskQueue.h"

#include "ztask/ZTask.h"

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <thread>

namespace nyx::embedded {

using Lock = std::unique_lock<std::mutex>;

class RenderTaskQueue::Impl {
public:
    /// Whether the calling thread is inside a task of this queue.
    [[nodiscard]] bool isInTask() const { return running && runner == std::this_thread::get_id(); }

    /// Runs the oldest task, unlocked; nothing else may be running.
    void runOldest(Lock& lock) {
        ZTask* const task = tasks.front();
        tasks.pop_front();
        running = true;
        runner = std::this_thread::get_id();
        lock.unlock();
        run(task);
        lock.lock();
        running = false;
        ++finished;
        changed.notify_all();
    }

    void work() {
        Lock lock(mutex);
        for (;;) {
            changed.wait(lock, [this] {
                return ending || (!tasks.empty() && (!paused || requestedSteps > 0));
            });
            if (tasks.empty()) {
                return; // ending, and nothing is left
            }
            if (requestedSteps > 0) {
                --requestedSteps;
            }
            runOldest(lock);
        }
    }

    mutable std::mutex mutex;
    std::condition_variable changed; // any of what follows
    std::deque<ZTask*> tasks;
    bool paused = false;
    bool ending = false;
    bool running = false;
    std::thread::id runner;
    std::uint64_t finished = 0;
    // Tasks that may begin although the queue is paused. They stay granted over a resume(), so that
    // every step() gets its task.
    std::size_t requestedSteps = 0;
    std::thread thread;

private:
    static void run(ZTask* task) noexcept {
        // Asked first: whoever keeps the task may end it as soon as it has run.
        bool const owned = task->deleteOnDone();
        task->run();
        if (owned) {
            delete task;
        }
    }
};

RenderTaskQueue::RenderTaskQueue(Mode mode) : impl_(std::make_unique<Impl>()) {
    if (mode == Mode::Threaded) {
        impl_->thread = std::thread([impl = impl_.get()] { impl->work(); });
    }
}

RenderTaskQueue::~RenderTaskQueue() {
    Lock lock(impl_->mutex);
    impl_->ending = true;
    if (impl_->thread.joinable()) {
        lock.unlock();
        impl_->changed.notify_all();
        impl_->thread.join();
        return;
    }
    while (!impl_->tasks.empty()) {
        impl_->runOldest(lock);
    }
}

void RenderTaskQueue::addBlockingRenderTask(ZTask* task) {
    if (!task) {
        return;
    }
    // The queue's own from here on, also when there is no room for it.
    std::unique_ptr<ZTask> owned(task->deleteOnDone() ? task : nullptr);
    std::lock_guard const lock(impl_->mutex);
    impl_->tasks.push_back(task);
    static_cast<void>(owned.release());
    impl_->changed.notify_all();
}

void RenderTaskQueue::waitIdle() {
    Lock lock(impl_->mutex);
    if (impl_->isInTask()) {
        return;
    }
    auto const isIdle = [impl = impl_.get()] {
        return !impl->running &&
               (impl->tasks.empty() || (impl->paused && impl->requestedSteps == 0));
    };
    while (!isIdle()) {
        if (impl_->running || impl_->thread.joinable()) {
            impl_->changed.wait(lock);
        } else {
            impl_->runOldest(lock);
        }
    }
}

void RenderTaskQueue::pause() {
    std::lock_guard const lock(impl_->mutex);
    impl_->paused = true;
    impl_->changed.notify_all();
}

void RenderTaskQueue::resume() {
    std::lock_guard const lock(impl_->mutex);
    impl_->paused = false;
    impl_->changed.notify_all();
}

bool RenderTaskQueue::isPaused() const {
    std::lock_guard const lock(impl_->mutex);
    return impl_->paused;
}

bool RenderTaskQueue::step() {
    Lock lock(impl_->mutex);
    if (impl_->isInTask()) {
        return false;
    }
    if (impl_->thread.joinable()) {
        if (!impl_->paused || impl_->tasks.size() <= impl_->requestedSteps) {
            return false;
        }
        // First in, first out: this caller's task is the one after those already granted.
        std::uint64_t const mine =
            impl_->finished + (impl_->running ? 1 : 0) + ++impl_->requestedSteps;
        impl_->changed.notify_all();
        impl_->changed.wait(lock, [&] { return impl_->finished >= mine; });
        return true;
    }
    impl_->changed.wait(lock, [this] { return !impl_->running; });
    if (impl_->tasks.empty()) {
        return false;
    }
    impl_->runOldest(lock);
    return true;
}

std::size_t RenderTaskQueue::pending() const {
    std::lock_guard const lock(impl_->mutex);
    return impl_->tasks.size();
}

} // namespace nyx::embedded
