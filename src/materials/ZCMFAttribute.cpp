#include "zsg/materials/ZCMFAttribute.h"

namespace zsg {

bool ZCMFAttribute::isColorValue(ZCMFAttributeKind kind) noexcept {
    return kind >= ZCMFAttributeKind::Color3 && kind <= ZCMFAttributeKind::Color6;
}

bool ZCMFAttribute::isExportable(ZCMFAttributeKind kind) noexcept {
    return kind < ZCMFAttributeKind::Image || kind > ZCMFAttributeKind::Other7;
}

} // namespace zsg
