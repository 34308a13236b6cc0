// The destructors of the painting interfaces: their virtual tables live in this library.

#include "zsg/painting/IPainter.h"
#include "zsg/painting/IPainterManager.h"
#include "zsg/painting/IPainterSurface.h"

namespace zsg {

IPainterSurface::IPainterSurface() = default;
IPainterSurface::IPainterSurface(IPainterSurface const&) = default;
IPainterSurface& IPainterSurface::operator=(IPainterSurface const&) = default;
IPainterSurface::IPainterSurface(IPainterSurface&&) noexcept = default;
IPainterSurface& IPainterSurface::operator=(IPainterSurface&&) noexcept = default;
IPainterSurface::~IPainterSurface() = default;

IPainter::IPainter() = default;
IPainter::IPainter(IPainter const&) = default;
IPainter& IPainter::operator=(IPainter const&) = default;
IPainter::~IPainter() = default;

IPainterManager::IPainterManager() = default;
IPainterManager::~IPainterManager() = default;

} // namespace zsg
