#include "painting/PaintScene.h"
#include "zsg/core/SceneGraphPars.h"

#include "nyxembedded/Renderer.h"
#include "ztask/ZTask.h"

#include <gtest/gtest.h>

#include <string>

using namespace zsg;

namespace {

struct PaintTask final : ZTask {
    PaintTask(nyx::embedded::Painting& all, nyx::SurfaceId id, std::uint32_t layerId, int step)
        : painting(all), surface(id), layer(layerId), place(static_cast<float>(step % 64)) {
        setDeleteOnDone(true);
    }
    void run() override {
        auto const before = painting.pixels(surface, layer);
        painting.paint(surface, layer, {{{place, place}}, 6, 0.5f, {1, 0, 0, 1}});
        if (before && static_cast<int>(place) % 3 == 0) {
            painting.setPixels(surface, layer, *before);
        }
        static_cast<void>(painting.composite(surface));
    }
    nyx::embedded::Painting& painting;
    nyx::SurfaceId surface;
    std::uint32_t layer;
    float place;
};

// Names and the deleted flag go to the renderer from this thread while the render thread works.
TEST(PaintThread, setsNamesAndDeletedWhileTasksRun) {
    nyx::embedded::Renderer renderer;
    nyx::embedded::RenderTaskQueue queue;
    ZUndoStack undo;
    SceneGraphPars pars;
    pars.rtApi = renderer.api();
    pars.taskQueue = &queue;
    pars.undoStack = &undo;
    auto root = ISceneGraph::create(pars);
    IPainter& painter = *root->painterManager()->painter();
    nyx::SurfaceId const id = painter.createSurface(128);
    IPainterSurface& surface = *painter.surface(id);
    for (int i = 0; i < 300; ++i) {
        auto const at = static_cast<unsigned>(i % 7);
        if (i % 50 == 0) {
            surface.addLayer(i % 3);
        }
        surface.setLayerName(at, QString::number(i));
        surface.setDeleted(i % 2 == 0);
        queue.addBlockingRenderTask(new PaintTask(renderer.painting(), id, 1 + at, i));
        surface.moveLayer(at, static_cast<unsigned>(i % 5));
        surface.setLayerVisibility(at, i % 4 != 0);
        if (i % 20 == 19) {
            undo.undo();
            painter.createSurface(64, id);
            painter.reload();
        }
    }
    queue.waitIdle();
    auto const info = renderer.painting().surface(id).value();
    EXPECT_FALSE(info.deleted);
    EXPECT_EQ(info.layers.size(), surface.layers().size());
    for (std::size_t i = 0; i < info.layers.size(); ++i) {
        EXPECT_EQ(info.layers[i].id, surface.layers()[info.layers.size() - 1 - i].id);
    }
    undo.clear();
}

} // namespace
