#pragma once

#include "nyxembedded/Export.h"
#include "ztask/ZTaskQueue.h"

#include <cstddef>
#include <memory>

namespace nyx::embedded {

/// The embedded renderer's task queue: one FIFO of tasks, worked off one at a time. Any thread may
/// call, and a task may add tasks; a task that waits or steps returns at once, because it would
/// wait for itself. Destruction runs what is left, paused or not, and ends the thread: no queue may
/// be a static object of a Windows library, where a thread cannot end while libraries are unloaded.
class NYXEMBEDDED_EXPORT RenderTaskQueue final : public ZTaskQueue {
public:
    enum class Mode {
        Threaded, ///< tasks run on the queue's own render thread as soon as they can
        Manual,   ///< without a thread: tasks run on the thread that calls step() or waitIdle()
    };

    explicit RenderTaskQueue(Mode mode = Mode::Threaded);
    ~RenderTaskQueue() override;
    RenderTaskQueue(RenderTaskQueue const&) = delete;
    RenderTaskQueue& operator=(RenderTaskQueue const&) = delete;

    /// Never waits for a task, whatever the queue is doing. Null is ignored.
    void addBlockingRenderTask(ZTask* task) override;

    /// Returns when no task runs and none is left, or, while the queue is paused, when no task
    /// runs.
    void waitIdle();
    /// From now on no task begins, except by step(). A task under way goes on; waitIdle() awaits
    /// its end.
    void pause();
    void resume();
    [[nodiscard]] bool isPaused() const;
    /// Runs the oldest task and returns when it has run; false when there is none. A threaded queue
    /// runs it on the render thread and must be paused, else the result is false.
    bool step();
    /// How many tasks have not begun.
    [[nodiscard]] std::size_t pending() const;

private:
    class Impl;
    std::unique_ptr<Impl> impl_;
};

} // namespace nyx::embedded
