#include "painting/ZPainterManager.h"

#include "painting/ZPainter.h"
#include "painting/ZPainterBrush.h"
#include "painting/createBrush.h"

#include "nyxrender/nyxPainter.h"
#include "nyxrender/nyxRT_api.h"

namespace zsg {

namespace {

nyxPainter_factory* factoryOf(nyxRT_api* rtApi) {
    return rtApi ? nyx_painter_factory(rtApi->scene()) : nullptr;
}

nyxPainter* makePainter(nyxRT_api* rtApi) {
    nyxPainter_factory* const factory = factoryOf(rtApi);
    return factory ? factory->create("svdag_painter") : nullptr;
}

} // namespace

ZPainterManager::ZPainterManager(nyxRT_api* rtApi, ZTaskQueue* taskQueue, IEventQueue* eventQueue,
                                 ZUndoStack* undoStack)
    : rtApi_(rtApi),
      painter_(std::make_unique<ZPainter>(makePainter(rtApi), rtApi, taskQueue, eventQueue,
                                          undoStack)) {}

// The painter asks for the same release again when it goes; see its destructor.
ZPainterManager::~ZPainterManager() {
    if (nyxPainter_factory* const factory = factoryOf(rtApi_)) {
        factory->release(painter_->painter());
    }
}

IPainter* ZPainterManager::painter() { return painter_.get(); }

std::unique_ptr<IPainterBrush> ZPainterManager::loadBrush(nyx::painter::nyxBrush_node* node,
                                                          nyx::MaterialId material) {
    return std::make_unique<ZPainterBrush>(node, rtApi_, material);
}

std::unique_ptr<IPainterBrush> ZPainterManager::createBrush(float size, nyx::MaterialId material) {
    return zsg::createBrush(rtApi_, size, material);
}

} // namespace zsg
