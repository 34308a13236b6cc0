#include "zsg/painting/IPainterBrush.h"

namespace zsg {

IPainterBrush::IPainterBrush() = default;

IPainterBrush::~IPainterBrush() = default;

} // namespace zsg
