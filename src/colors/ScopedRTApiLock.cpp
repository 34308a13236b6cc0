#include "zsg/colors/ScopedRTApiLock.h"

#include "nyxrender/nyxRT_api.h"

namespace zsg {

ScopedRTApiLock::ScopedRTApiLock(nyxRT_api* api) : api_(api) {
    if (api_) {
        api_->lock();
    }
}

ScopedRTApiLock::~ScopedRTApiLock() {
    if (api_) {
        api_->unlock();
    }
}

} // namespace zsg
