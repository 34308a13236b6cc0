#pragma once

#include "ztask/Export.h"

class ZTask;

/// Runs tasks on the render thread, one after the other, in the order in which they were added.
class ZTASK_EXPORT ZTaskQueue {
public:
    virtual ~ZTaskQueue();
    /// Adds a task during which rendering stands still; returns at once. A task whose
    /// deleteOnDone() is set when it begins is deleted after it ran, and at once when it cannot be
    /// kept and the call throws. Any thread may call.
    virtual void addBlockingRenderTask(ZTask* task) = 0;
};
