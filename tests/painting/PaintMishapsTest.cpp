#include "painting/PaintScene.h"
#include "support/Mishaps.h"
#include "zsg/core/SceneGraphPars.h"

#include <regex>
#include <set>

using namespace zsg;

namespace {

struct Studio final : PaintScene {
    Studio() {
        SceneGraphPars pars;
        pars.rtApi = api();
        pars.taskQueue = &queue;
        pars.undoStack = &undo;
        studioRoot = ISceneGraph::create(pars);
    }
    ~Studio() override {
        undo.clear();
        queue.waitIdle();
    }
    void TestBody() override {}
    IEventQueue& events() { return *studioRoot->eventQueue(); }

    /// Those behind the eighth are no undoable edits. Brushes are left out: their parameters stand
    /// in one of Qt's hashes, which ends the program when it cannot grow.
    Mishaps::Operations operations() {
        IPainter& p = *studioRoot->painterManager()->painter();
        IPainterSurface& s = *p.surface(id);
        return {
            [&] { s.addLayer(1); },
            [&] { s.setLayerDeleted(1, true); },
            [&] { s.setLayerBlend(0, nyx::ColorBlendMode::Screen); },
            [&] { s.setLayerVisibility(2, false); },
            [&] { s.setLayerName(1, QStringLiteral("Größe")); },
            [&] { s.moveLayer(2, 0); },
            [&] { s.moveLayer(0, 2); },
            [&] {
                s.setLayerBackgroundColor(1, {1, 0, 0, 1}, true);
            },
            [&] { s.setEditLayer(1); },
            [&] { p.createSurface(64, id); },
        };
    }

    /// What is in the renderer, but for the edit layer and for deleted layers, which an undone
    /// addition leaves.
    std::string inRenderer() {
        queue.waitIdle();
        return std::regex_replace(renderer.dump(), std::regex(" edit .*|.* deleted.*\n"), "");
    }

    void check(std::size_t operation) {
        if (operation < 8) {
            EXPECT_EQ(undo.count(), 0);
            EXPECT_EQ(inRenderer(), before);
            IPainterSurface& s = *studioRoot->painterManager()->painter()->surface(id);
            auto const withoutMark = [](std::string list) {
                std::erase(list, '*');
                return list;
            };
            EXPECT_EQ(withoutMark(list(s)), withoutMark(rendererList(id)));
        }
        IPainter& p = *studioRoot->painterManager()->painter();
        p.reload();
        std::set<nyx::SurfaceId> ids;
        for (IPainterSurface* const s : p.surfaces()) {
            EXPECT_TRUE(ids.insert(s->id()).second) << "two models of one surface";
        }
    }

    nyx::SurfaceId const id = addSurface({"Top", "Mid", "Low"});
    std::string const before = inRenderer();
    std::unique_ptr<ISceneGraph> studioRoot;
};

// Model and renderer agree, and nothing stays that no entry of the history stands for.
TEST(PaintMishaps, whateverGoesWrongNothingStaysWithoutAnEntry) { Mishaps::inTurn<Studio>(); }

} // namespace
