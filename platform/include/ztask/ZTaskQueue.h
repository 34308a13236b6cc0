#pragma once

#include "ztask/Export.h"

class ZTask;

/// Runs tasks on the render thread, one after the other, in the order in which they were added.
class ZTASK_EXPORT ZTaskQueue {
public:
    virtual ~ZTaskQueue();
    /// Adds a task during which rendering stands still; returns at once. The task deletes itself
    /// after it ran when deleteOnDone() is set. Any thread may call.
    virtual void addBlockingRenderTask(ZTask* task) = 0;
};
