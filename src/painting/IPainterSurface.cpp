#include "zsg/painting/IPainterSurface.h"

namespace zsg {

IPainterSurface::IPainterSurface() = default;
IPainterSurface::IPainterSurface(IPainterSurface const&) = default;
IPainterSurface& IPainterSurface::operator=(IPainterSurface const&) = default;
IPainterSurface::IPainterSurface(IPainterSurface&&) noexcept = default;
IPainterSurface& IPainterSurface::operator=(IPainterSurface&&) noexcept = default;

IPainterSurface::~IPainterSurface() = default;

} // namespace zsg
