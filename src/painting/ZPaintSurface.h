#pragma once

#include "zsg/core/IEventQueue.h"
#include "zsg/painting/IPainterSurface.h"

#include <QPointer>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class nyxCustomSurface;
class nyxRT_api;
class ZTask;
class ZTaskQueue;
class ZUndoCommand;
class ZUndoStack;

namespace zsg {

/// The model of one renderer surface. A public edit pushes a command, the command calls the
/// `…Internal` operation, and that changes the model, queues what the renderer has to do, asks for
/// a frame and posts the event. Public operations take list indices, internal ones layer ids; an
/// unknown id is ignored.
///
/// Without a task queue only the model changes: no task, no frame, no event. Without an undo stack
/// an edit is made and not kept. Without a scene there is nowhere to keep a name: a new layer has
/// none, and naming is ignored.
class ZPaintSurface final : public IPainterSurface {
public:
    /// All but `id` is borrowed; `surface` and `rtApi` must not be null.
    ZPaintSurface(nyx::SurfaceId id, nyxCustomSurface* surface, nyxRT_api* rtApi,
                  ZTaskQueue* taskQueue, IEventQueue* eventQueue, ZUndoStack* undoStack);

    [[nodiscard]] nyx::SurfaceId id() override;
    void setDeleted(bool deleted) override;
    [[nodiscard]] bool deleted() const override;
    [[nodiscard]] std::vector<nyxLayerInfo> layers() override;
    void addLayer(int index) override;
    void setLayerDeleted(unsigned int index, bool deleted) override;
    void setLayerBlend(unsigned int index, nyx::ColorBlendMode mode) override;
    void setLayerVisibility(unsigned int index, bool visible) override;
    void setLayerName(unsigned int index, QString name) override;
    void moveLayer(unsigned int from, unsigned int to) override;
    bool setLayerBackgroundColor(unsigned int index, nyxColor_rgba color, bool undoable) override;
    void setEditLayer(unsigned int index) override;
    [[nodiscard]] unsigned int editLayer() const override;

    /// Deleted layers count.
    [[nodiscard]] unsigned int nLayers() const;
    /// The list itself, until the next change.
    [[nodiscard]] std::vector<nyxLayerInfo> const& layerList() const { return layers_; }

    /// Inserts a layer at a list index and returns its id.
    unsigned int addLayerInternal(unsigned int index, std::string name);
    void setLayerDeletedInternal(unsigned int id, bool deleted);
    void setLayerBlendInternal(unsigned int id, nyx::ColorBlendMode mode);
    void setLayerVisibilityInternal(unsigned int id, bool visible);
    void setLayerNameInternal(unsigned int id, QString name);
    /// Takes a layer to the place of another; noLayer stands for list index 0 in both places.
    void moveLayerInternal(unsigned int id, unsigned int targetId);
    void setLayerBackgroundColorInternal(unsigned int id, nyxColor_rgba color);

    /// Gives a new renderer surface, which has one layer, the structure of a list of layers (top
    /// first), directly and without telling anybody.
    void setupLayersAfterClone(std::vector<nyxLayerInfo> const& source);

private:
    void readFromRenderer();
    bool push(std::unique_ptr<ZUndoCommand> command);
    [[nodiscard]] unsigned int renderIndex(unsigned int index) const;
    /// False, and the task is deleted, without a task queue.
    bool queue(std::unique_ptr<ZTask> task);
    /// What follows a change of one property: the task, a frame and the event.
    void changed(std::unique_ptr<ZTask> task);
    void refresh();
    void postUpdated();
    [[nodiscard]] char const* keepName(char const* name);

    std::vector<nyxLayerInfo> layers_; ///< top first
    unsigned int editLayer_ = 0;       ///< a list index
    nyx::SurfaceId id_;
    nyxCustomSurface* surface_;
    nyxRT_api* rtApi_;
    bool deleted_;
    ZTaskQueue* taskQueue_;
    /// Commands may outlive the root, and the queue with it.
    QPointer<IEventQueue> eventQueue_;
    ZUndoStack* undoStack_;
    unsigned int nextLayerId_ = 0;
};

} // namespace zsg
