#pragma once

#include "zsg/Export.h"
#include "zsg/painting/IPainterBrush.h"

#include "nyxrender/Ids.h"

#include <memory>

namespace nyx::painter {
class nyxBrush_node;
}

namespace zsg {

class IPainter;

/// The way into 3D painting: the scene's one painter, and the makers of brushes. Main thread only.
class ZSG_EXPORT IPainterManager {
public:
    IPainterManager(IPainterManager const&) = delete;
    IPainterManager& operator=(IPainterManager const&) = delete;
    virtual ~IPainterManager();

    /// Never null; the manager's own.
    [[nodiscard]] virtual IPainter* painter() = 0;
    /// A brush over nodes that exist; `node` stays the renderer's. It does not read them: see
    /// IPainterBrush::updateFromNode.
    [[nodiscard]] virtual std::unique_ptr<IPainterBrush>
    loadBrush(nyx::painter::nyxBrush_node* node, nyx::MaterialId material) = 0;
    /// A brush over a new graph of nodes. Its diameter is 5 % of `size` in scene units, its spacing
    /// 1 %. Never null; without a scene the brush has no nodes.
    [[nodiscard]] virtual std::unique_ptr<IPainterBrush> createBrush(float size,
                                                                     nyx::MaterialId material) = 0;

protected:
    IPainterManager();
};

} // namespace zsg
