#include "zsg/painting/IPainterManager.h"

namespace zsg {

IPainterManager::IPainterManager() = default;

IPainterManager::~IPainterManager() = default;

} // namespace zsg
