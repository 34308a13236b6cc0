#pragma once

#include "ztask/Export.h"

/// A piece of work for the render thread.
class ZTASK_EXPORT ZTask {
public:
    ZTask();
    virtual ~ZTask();
    ZTask(ZTask const&) = delete;
    ZTask& operator=(ZTask const&) = delete;

    /// Called once by the queue, on the render thread. Must not throw.
    virtual void run() = 0;

    /// Whether the queue deletes the task when it has run; otherwise it stays its maker's, who
    /// keeps it alive until then.
    void setDeleteOnDone(bool on) { deleteOnDone_ = on; }
    [[nodiscard]] bool deleteOnDone() const { return deleteOnDone_; }

private:
    bool deleteOnDone_ = false;
};
