#include "support/Allocations.h"
#include "support/EventTrace.h"
#include "zsg/colors/ColorController.h"
#include "zsg/colors/ColorDB.h"
#include "zsg/core/Event.h"
#include "zsg/core/ISceneGraph.h"
#include "zsg/lightlayers/ILightLayerController.h"
#include "zsg/painting/IPainter.h"
#include "zsg/painting/IPainterManager.h"
#include "zsg/painting/IPainterSurface.h"

#include "nyxembedded/Painting.h"
#include "nyxembedded/Renderer.h"
#include "nyxrender/nyxMessage.h"
#include "zcore/ZUndoStack.h"

#include <QObject>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <new>
#include <string>
#include <vector>

using namespace zsg;

namespace {

/// Overwrites the message's list while it is delivered, as a renderer may that is called meanwhile.
class Overwriter final : public IEventListener {
public:
    void onEvent(Event const* event) override {
        eventIds.push_back(event->eventId());
        ids.assign(ids.size(), nyx::ColorId());
        ids.clear();
    }
    std::vector<nyx::ColorId> ids;
    std::vector<unsigned int> eventIds;
};

TEST(ZSceneGraph, turnsRendererMessagesIntoEvents) {
    nyx::embedded::Renderer renderer;
    SceneGraphPars pars;
    EXPECT_FALSE(pars.rtApi || pars.materialService || pars.sceneMaterialManager ||
                 pars.taskQueue || pars.undoStack);
    pars.rtApi = renderer.api();
    std::unique_ptr<ISceneGraph> const root = ISceneGraph::create(pars);
    EXPECT_EQ(root->rtApi(), renderer.api());
    ASSERT_NE(root->eventQueue(), nullptr);
    EXPECT_EQ(root->eventQueue()->parent(), nullptr);

    EventTrace trace(*root->eventQueue());
    Overwriter overwriter;
    Subscription const subscription(*root->eventQueue(), overwriter, {EventType::ColorSynced});
    overwriter.ids = {nyx::ColorId(9), nyx::ColorId(2), nyx::ColorId(9)};
    EXPECT_TRUE(root->handleRendererMessage({5006, overwriter.ids, {}}));
    EXPECT_EQ(trace.take(), "ColorSynced 9\nColorSynced 2\nColorSynced 9");
    auto const& numbers = overwriter.eventIds;
    ASSERT_EQ(numbers.size(), 3u);
    EXPECT_TRUE(numbers[1] == numbers[0] + 1 && numbers[2] == numbers[1] + 1);

    EXPECT_TRUE(root->handleRendererMessage({5006, {}, {}}));
    std::vector<nyx::ColorId> const one{nyx::ColorId(1)};
    for (std::uint32_t const code : {0u, 5005u, 5008u, 0xFFFFFFFFu}) {
        EXPECT_FALSE(root->handleRendererMessage({code, one, nyx::ColorwayId(1)})) << code;
    }
    EXPECT_EQ(trace.take(), "");

    nyx::ColorwayId const colorway = renderer.colorways().add("Warm", {});
    ASSERT_TRUE(root->colorDB()->getColorwayParameters(colorway));
    trace.take();
    EXPECT_TRUE(root->handleRendererMessage({5007, {}, colorway}));
    EXPECT_NE(trace.take().find("ColorWayUpdated 1"), std::string::npos);
    EXPECT_TRUE(root->handleRendererMessage({5007, {}, nyx::ColorwayId(77)}));
    EXPECT_EQ(trace.take(), "");
}

TEST(ZSceneGraph, takesEverythingWithItAndTheQueueAfterTheColors) {
    nyx::embedded::Renderer renderer;
    nyx::ColorId const color = renderer.colors().add("Red", {1, 0, 0, 1});
    SceneGraphPars pars;
    pars.rtApi = renderer.api();
    std::unique_ptr<ISceneGraph> root = ISceneGraph::create(pars);
    EXPECT_EQ(root->colorController()->colorDB(), root->colorDB());
    ASSERT_TRUE(root->colorDB()->getColorParameters(color));
    std::size_t const held = renderer.ledger().blocks;
    EXPECT_GT(held, 0u);

    std::size_t heldWhenQueueGoes = held;
    QObject::connect(root->eventQueue(), &QObject::destroyed,
                     [&] { heldWhenQueueGoes = renderer.ledger().blocks; });
    root.reset();
    EXPECT_EQ(heldWhenQueueGoes, 0u);
}

TEST(ZSceneGraph, leavesCommandsBehindThatDoNoHarm) {
    nyx::embedded::Renderer renderer;
    nyx::ColorId const red = renderer.colors().add("Red", {1, 0, 0, 1});
    nyx::SurfaceId const surface = renderer.painting().addSurface("Board", 64);
    ZUndoStack stack;
    SceneGraphPars pars;
    pars.rtApi = renderer.api();
    pars.undoStack = &stack;
    std::unique_ptr<ISceneGraph> root = ISceneGraph::create(pars);
    ColorController& colors = *root->colorController();
    colors.setDisplayName(red, "Ruby");
    colors.toggleMultiColor(red);
    colors.applyColorway(colors.createColorway("Summer", {}));
    root->lightLayerController()->createLayer("Rim");
    root->painterManager()->painter()->surface(surface)->addLayer(0);
    int const count = stack.count();
    ASSERT_EQ(count, 6);
    std::string const before = renderer.dump();
    root.reset();

    testing::internal::CaptureStderr();
    EXPECT_TRUE(stack.undo()) << "surfaces stay, so their layers follow";
    EXPECT_FALSE(stack.goTo(0));
    EXPECT_FALSE(stack.goTo(count));
    std::string const warnings = testing::internal::GetCapturedStderr();
    EXPECT_EQ(std::ranges::count(warnings, '\n'), 2) << "one of the colours, one of the lights";
    EXPECT_EQ(renderer.dump(), before);
}

TEST(ZSceneGraph, thatCannotBeMadeLeavesNothing) {
    nyx::embedded::Renderer renderer;
    SceneGraphPars pars;
    pars.rtApi = renderer.api();
    bool happened = true;
    std::size_t failures = 0;
    for (; happened; ++failures) {
        try {
            Allocations::Failure const failure(failures, happened);
            EXPECT_TRUE(ISceneGraph::create(pars));
        } catch (std::bad_alloc const&) { // and what had been made is gone
        }
    }
    EXPECT_GT(failures, 9u) << "each subsystem is at least one";
    EXPECT_EQ(renderer.ledger().blocks, 0u);
    EXPECT_EQ(renderer.ledger().arrays, 0u);
    EXPECT_TRUE(ISceneGraph::create(pars)->eventQueue());
}

} // namespace
