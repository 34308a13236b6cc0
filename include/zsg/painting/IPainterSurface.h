#pragma once

#include "zsg/Export.h"

#include "nyxrender/Ids.h"
#include "nyxrender/nyxLayerInfo.h"

#include <QString>

#include <vector>

namespace zsg {

/// The layers of one painted surface: an ordered list, top first, and the layer that is painted on
/// (the edit layer). Layers are given by **index**, their position in that list; a layer's id in
/// its record is what stays the same when layers move. Main thread only.
///
/// Every edit is one command on the undo stack, is seen here at once, is announced by a
/// PaintLayersUpdatedEvent, and reaches the renderer as a task on its render thread. Names and
/// setDeleted() reach it directly. An index out of range is quietly ignored. Layers are never
/// removed: deleting one marks it, and it keeps its place, its id and its properties.
class ZSG_EXPORT IPainterSurface {
public:
    virtual ~IPainterSurface();

    [[nodiscard]] virtual nyx::SurfaceId id() = 0;
    /// Whether the whole surface is deleted. Setting it is no undoable edit and is not announced.
    virtual void setDeleted(bool deleted) = 0;
    [[nodiscard]] virtual bool deleted() const = 0;

    /// A copy of the list, deleted layers included. The names live as long as the scene.
    [[nodiscard]] virtual std::vector<nyxLayerInfo> layers() = 0;

    /// Inserts an empty, visible layer above the one at `index` and makes it the edit layer. It is
    /// named "Layer N", with N one above the largest number in use. An index below 0 counts as 0,
    /// one above the number of layers as that number. Undo marks the layer as deleted.
    virtual void addLayer(int index) = 0;
    /// Marks a layer as deleted; the edit layer becomes the nearest one that is not, first upwards
    /// (the layer's own place included), then downwards. Nothing happens when the flag is `deleted`
    /// already. With false the entry that is pushed deletes as well: a layer is brought back by
    /// undoing its deletion.
    virtual void setLayerDeleted(unsigned int index, bool deleted) = 0;
    /// Nothing happens when the layer has that mode already.
    virtual void setLayerBlend(unsigned int index, nyx::ColorBlendMode mode) = 0;
    /// Nothing happens when the layer is as visible already.
    virtual void setLayerVisibility(unsigned int index, bool visible) = 0;
    /// An equal name is an edit too. The empty name takes the name away.
    virtual void setLayerName(unsigned int index, QString name) = 0;
    /// Takes the layer at `from` to `to`; those between move by one place. The index of the edit
    /// layer stays what it was. See docs/undo.md for what undo restores.
    virtual void moveLayer(unsigned int from, unsigned int to) = 0;
    /// The colour that lies beneath what was painted on the layer. False, and nothing happens, when
    /// it is that colour exactly. Entries in a row merge into one, also those of other layers.
    /// `undoable` false makes the change without an entry, for the steps of a drag.
    virtual bool setLayerBackgroundColor(unsigned int index, nyxColor_rgba color,
                                         bool undoable) = 0;

    /// Chooses the layer that is painted on. Not undoable, not announced, and any index is taken.
    virtual void setEditLayer(unsigned int index) = 0;
    /// As set last. After construction and after a copy it is the number that the renderer reports,
    /// which counts from the bottom.
    [[nodiscard]] virtual unsigned int editLayer() const = 0;

protected:
    IPainterSurface();
    IPainterSurface(IPainterSurface const&);
    IPainterSurface& operator=(IPainterSurface const&);
    IPainterSurface(IPainterSurface&&) noexcept;
    IPainterSurface& operator=(IPainterSurface&&) noexcept;
};

} // namespace zsg
