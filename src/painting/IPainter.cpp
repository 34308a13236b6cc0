#include "zsg/painting/IPainter.h"

namespace zsg {

IPainter::IPainter() = default;
IPainter::IPainter(IPainter const&) = default;
IPainter& IPainter::operator=(IPainter const&) = default;

IPainter::~IPainter() = default;

} // namespace zsg
