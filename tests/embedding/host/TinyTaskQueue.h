#pragma once

#include "ztask/ZTaskQueue.h"

#include <vector>

/// Keeps tasks until the host has them run.
class TinyTaskQueue final : public ZTaskQueue {
public:
    void addBlockingRenderTask(ZTask* task) override { tasks_.push_back(task); }
    /// Runs what is there on another thread, and waits for it.
    void run();

private:
    std::vector<ZTask*> tasks_;
};
