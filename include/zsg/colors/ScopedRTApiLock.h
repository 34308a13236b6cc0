#pragma once

#include "zsg/Export.h"

class nyxRT_api;

namespace zsg {

/// Holds the renderer's recursive lock over scene data from construction to destruction. Both must
/// happen on the same thread.
class ZSG_EXPORT ScopedRTApiLock {
public:
    /// `api` is borrowed; null locks nothing.
    explicit ScopedRTApiLock(nyxRT_api* api);
    ~ScopedRTApiLock();
    ScopedRTApiLock(ScopedRTApiLock const&) = delete;
    ScopedRTApiLock& operator=(ScopedRTApiLock const&) = delete;

private:
    nyxRT_api* api_;
};

} // namespace zsg
