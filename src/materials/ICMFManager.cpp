#include "zsg/materials/ICMFManager.h"

namespace zsg {

ICMFManager::ICMFManager() = default;

ICMFManager::~ICMFManager() = default;

} // namespace zsg
