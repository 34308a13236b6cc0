#include "zsg/core/Event.h"

namespace zsg {

namespace {

std::uint32_t nextEventId = 0;

} // namespace

Event::Event(EventType type) noexcept : type_(type), eventId_(nextEventId++) {}

Event::~Event() = default;

} // namespace zsg
