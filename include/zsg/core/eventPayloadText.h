#pragma once

#include "zsg/Export.h"

#include <string>

namespace zsg {

class Event;

/// What an event carries, for messages: its ids or its number in the order of the constructor's
/// arguments, a blank between them, an invalid id as "invalid". Empty for an event that carries
/// nothing and for one of a type that Events.h has no class for.
[[nodiscard]] ZSG_EXPORT std::string eventPayloadText(Event const& event);

} // namespace zsg
