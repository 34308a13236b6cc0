#pragma once

#include "support/TestScene.h"
#include "zsg/core/IEventListener.h"
#include "zsg/core/ISceneGraph.h"
#include "zsg/core/Subscription.h"
#include "zsg/painting/IPainter.h"
#include "zsg/painting/IPainterManager.h"
#include "zsg/painting/IPainterSurface.h"

#include "nyxembedded/Painting.h"
#include "nyxembedded/RenderTaskQueue.h"
#include "zcore/ZUndoStack.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

/// A root over the embedded renderer, with a task queue that runs tasks when the test says so. The
/// undo stack is cleared before the root goes, as hosts have to.
class PaintScene : public TestScene, private ZTaskQueue, private zsg::IEventListener {
protected:
    ~PaintScene() override;

    /// `layerNames` from the top; the ids ascend from the bottom, from 1.
    nyx::SurfaceId addSurface(std::vector<std::string> const& layerNames, int resolution = 64);

    zsg::ISceneGraph& root();
    zsg::IPainter& painter() { return *root().painterManager()->painter(); }
    zsg::IPainterSurface& surface(nyx::SurfaceId id) { return *painter().surface(id); }
    void endRoot();

    /// What happened since the last time, one line each, in order: "queued", the calls to the
    /// renderer, and events; then the queue is drained, with the calls of each task in one line.
    std::string happened();
    /// The same of one thing that is done; the lines with "; " between them.
    std::string trace(std::function<void()> const& what);
    /// The model's list, and the renderer's, top first: "A *B -C ~D", * the edit layer (the model's
    /// by its index, the renderer's from the bottom), - deleted, ~ hidden.
    static std::string list(zsg::IPainterSurface& surface);
    std::string rendererList(nyx::SurfaceId id);

    bool withTaskQueue = true;
    bool withUndoStack = true;
    nyx::embedded::RenderTaskQueue queue{nyx::embedded::RenderTaskQueue::Mode::Manual};
    ZUndoStack undo;
    std::function<void()> onPainted; ///< called once, by the next PaintLayersUpdatedEvent

private:
    void addBlockingRenderTask(ZTask* task) override;
    void onEvent(zsg::Event const* event) override;
    void takeCalls(std::string const& prefix, char const* separator);

    std::string lines_;
    std::unique_ptr<zsg::ISceneGraph> root_;
    std::unique_ptr<zsg::Subscription> subscription_;
};
