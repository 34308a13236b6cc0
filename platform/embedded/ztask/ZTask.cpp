#include "ztask/ZTask.h"

#include "ztask/ZTaskQueue.h"

ZTask::ZTask() = default;
ZTask::~ZTask() = default;

ZTaskQueue::~ZTaskQueue() = default;
