#include "zsg/core/IEventQueue.h"

namespace zsg {

IEventQueue::IEventQueue() = default;

IEventQueue::~IEventQueue() = default;

} // namespace zsg
