#pragma once

#include "zsg/painting/IPainterManager.h"

class nyxRT_api;
class ZTaskQueue;
class ZUndoStack;

namespace zsg {

class IEventQueue;
class ZPainter;

/// Has the renderer make its one kind of painter, and ends it. All that it is given is borrowed;
/// what is null leaves out what needs it.
class ZPainterManager final : public IPainterManager {
public:
    ZPainterManager(nyxRT_api* rtApi, ZTaskQueue* taskQueue, IEventQueue* eventQueue,
                    ZUndoStack* undoStack);
    ~ZPainterManager() override;

    [[nodiscard]] IPainter* painter() override;
    [[nodiscard]] std::unique_ptr<IPainterBrush> loadBrush(nyx::painter::nyxBrush_node* node,
                                                           nyx::MaterialId material) override;
    [[nodiscard]] std::unique_ptr<IPainterBrush> createBrush(float size,
                                                             nyx::MaterialId material) override;

private:
    nyxRT_api* rtApi_;
    std::unique_ptr<ZPainter> painter_;
};

} // namespace zsg
