#pragma once

#include "nyxrender/Export.h"

/// Writes to the renderer's warning channel, printf-style. Callable from any thread.
#if defined(__GNUC__)
__attribute__((format(printf, 1, 2)))
#endif
NYXRENDER_EXPORT void
nyx_warning(char const* format, ...);
