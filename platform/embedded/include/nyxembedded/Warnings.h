#pragma once

#include "nyxrender/Export.h"

#include <functional>
#include <string_view>

namespace nyx::embedded {

/// Receives every warning of the renderer, line break included, on the thread that warns and
/// possibly on several at once; an empty handler sends them to the standard error stream again.
/// Callable from any thread.
NYXRENDER_EXPORT void setWarningHandler(std::function<void(std::string_view)> handler);

} // namespace nyx::embedded
