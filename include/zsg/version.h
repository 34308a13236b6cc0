#pragma once

#include "zsg/Export.h"

/// The version of these headers. This is the one place that states it: the build reads it here.
/// The interface may change while the major number is 0; a minor number names each such change.
#define ZSG_VERSION_MAJOR 0
#define ZSG_VERSION_MINOR 1
#define ZSG_VERSION_PATCH 0

#define ZSG_VERSION_TEXT_OF_(major, minor, patch) #major "." #minor "." #patch
#define ZSG_VERSION_TEXT_(major, minor, patch) ZSG_VERSION_TEXT_OF_(major, minor, patch)
/// "0.1.0" and the like.
#define ZSG_VERSION_STRING                                                                         \
    ZSG_VERSION_TEXT_(ZSG_VERSION_MAJOR, ZSG_VERSION_MINOR, ZSG_VERSION_PATCH)
/// One number for comparisons, 10000 × major + 100 × minor + patch.
#define ZSG_VERSION (ZSG_VERSION_MAJOR * 10000 + ZSG_VERSION_MINOR * 100 + ZSG_VERSION_PATCH)

namespace zsg {

/// The version of the library that runs, as ZSG_VERSION_STRING was when it was built. A text that
/// lives for ever. Any thread.
ZSG_EXPORT char const* version() noexcept;

/// The same as one number, to be compared with ZSG_VERSION. Any thread.
ZSG_EXPORT int versionNumber() noexcept;

} // namespace zsg
