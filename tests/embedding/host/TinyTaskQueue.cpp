#include "TinyTaskQueue.h"

#include "ztask/ZTask.h"

#include <thread>

ZTask::ZTask() = default;
ZTask::~ZTask() = default;
ZTaskQueue::~ZTaskQueue() = default;

void TinyTaskQueue::run() {
    std::thread([this] {
        for (ZTask* const task : tasks_) {
            bool const isOurs = task->deleteOnDone();
            task->run();
            if (isOurs) {
                delete task;
            }
        }
    }).join();
    tasks_.clear();
}
