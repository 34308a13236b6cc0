#include "nyxembedded/Host.h"

#include "support/EventTrace.h"
#include "support/sourceDir.h"
#include "zsg/colors/ColorController.h"
#include "zsg/colors/ColorDB.h"
#include "zsg/core/ISceneGraph.h"
#include "zsg/painting/IPainter.h"
#include "zsg/painting/IPainterManager.h"
#include "zsg/painting/IPainterSurface.h"

#include "nyxembedded/Painting.h"
#include "zcore/ZUndoCommand.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <vector>

using nyx::embedded::Host;

namespace {

constexpr char const* oneColor =
    R"({"format":"zsg-scene","version":1,"colors":[{"id":1,"name":"Only","value":[0,0,0,1]}]})";

/// Runs a function in its place as a command.
class Calling final : public ZUndoCommand {
public:
    explicit Calling(std::function<void()> function)
        : ZUndoCommand(ZCommandId::EditColor, "Call"), function_(std::move(function)) {}
    bool undo() override { return true; }
    bool redo() override {
        function_();
        return true;
    }

private:
    std::function<void()> function_;
};

std::ptrdiff_t linesIn(std::string const& text) {
    return text.empty() ? 0 : std::count(text.begin(), text.end(), '\n') + 1;
}

} // namespace

TEST(Host, TheRootHearsTheRenderer) {
    Host host;
    ASSERT_EQ(host.loadScene(sourceDir() + "/examples/scenes/showroom.json"), "");
    EventTrace synced(*host.root().eventQueue(), {zsg::EventType::ColorSynced});
    host.renderer().processEvents();
    EXPECT_EQ(linesIn(synced.take()), 42) << "every colour of the scene that was loaded";
    nyx::ColorId const first = host.root().colorDB()->colors()[0];
    host.root().colorController()->setColor(first, ZColor(1, 0, 0), zsg::AllowForwardUndoMerge::No);
    host.renderer().processEvents();
    EXPECT_EQ(synced.take(), "ColorSynced " + std::to_string(first.toUint()));
}

TEST(Host, LoadingBringsANewRootOrChangesNothing) {
    Host host;
    nyx::ColorId const red = host.renderer().colors().add("Red", {1, 0, 0, 1});
    std::string watched;
    host.watchRoot([&](zsg::ISceneGraph* root) {
        watched += root ? "built " : "ended " + std::to_string(host.undoStack().count()) + ' ';
        EXPECT_TRUE(!root || root == &host.root());
    });
    host.root().colorController()->setDisplayName(red, "Ruby");
    zsg::ISceneGraph* const before = &host.root();
    EXPECT_NE(host.loadSceneText("{}"), "");
    EXPECT_NE(host.loadScene("nowhere.json"), "");
    EXPECT_EQ(watched, "built ");
    EXPECT_EQ(&host.root(), before);
    EXPECT_EQ(host.undoStack().count(), 1) << "a file that cannot be read costs no work";
    host.undoStack().beginMacro("M");
    EXPECT_NE(host.loadSceneText(oneColor), "") << "the stack would keep what edits the old root";
    host.undoStack().endMacro({});

    ASSERT_EQ(host.loadSceneText(oneColor), "");
    EXPECT_EQ(watched, "built ended 0 built ");
    EXPECT_EQ(host.renderer().ledger().blocks, 0u) << "the old root gave back what it had";
    EXPECT_EQ(host.root().colorDB()->colorFromId(nyx::ColorId(1)).getColorName(), "Only");
    host.watchRoot({});
}

TEST(Host, DoesNotPullTheRootFromUnderWhoUsesIt) {
    Host host;
    std::string fromCommand, fromMessage;
    host.undoStack().push(
        std::make_unique<Calling>([&] { fromCommand = host.loadSceneText(oneColor); }).release());
    EXPECT_NE(fromCommand, "");

    class Loading final : public zsg::IEventListener {
    public:
        explicit Loading(std::function<void()> function) : function_(std::move(function)) {}
        void onEvent(zsg::Event const*) override { function_(); }

    private:
        std::function<void()> function_;
    } loading([&] { fromMessage = host.loadSceneText(oneColor); });
    {
        zsg::Subscription const subscription(*host.root().eventQueue(), loading,
                                             {zsg::EventType::ColorSynced});
        host.renderer().colors().add("Red", {1, 0, 0, 1});
        host.renderer().colors().announce();
        host.renderer().processEvents();
    }
    EXPECT_NE(fromMessage, "");
    EXPECT_EQ(host.loadSceneText(oneColor), "");
}

TEST(Host, NamesTheLayerThatIsMeantWhileOthersMove) {
    Host host(nyx::embedded::RenderTaskQueue::Mode::Manual); // whose tasks wait until asked for
    zsg::IPainter& painter = *host.root().painterManager()->painter();
    nyx::SurfaceId const id = painter.createSurface(64);
    zsg::IPainterSurface& surface = *painter.surface(id);
    auto const names = [](auto const& layers) {
        std::vector<std::string> list;
        for (auto const& layer : layers) {
            list.emplace_back(layer.name);
        }
        return list;
    };
    auto const agree = [&] {
        host.taskQueue().waitIdle();
        auto inRenderer = names(host.renderer().painting().surface(id)->layers);
        std::ranges::reverse(inRenderer);
        EXPECT_EQ(names(surface.layers()), inRenderer);
    };
    surface.setLayerName(0, "Base");
    surface.addLayer(0);
    surface.addLayer(0);
    host.undoStack().beginMacro("Rename and move");
    surface.setLayerName(2, "Ground");
    surface.moveLayer(2, 0);
    surface.setLayerName(0, "Top");
    host.undoStack().endMacro({});
    agree();
    host.undoStack().undo();
    agree();
    host.undoStack().redo();
    agree();
}

TEST(Host, SavesWhatTheRenderThreadStillHasToDo) {
    Host host(nyx::embedded::RenderTaskQueue::Mode::Manual);
    zsg::IPainter& painter = *host.root().painterManager()->painter();
    painter.surface(painter.createSurface(64))->addLayer(0);
    ASSERT_GT(host.taskQueue().pending(), 0u);
    EXPECT_NE(host.saveSceneText().find("\"Layer 1\""), std::string::npos);
    EXPECT_FALSE(host.undoStack().isClean());

    EXPECT_NE(host.saveScene("/nowhere/scene.json"), "");
    EXPECT_FALSE(host.undoStack().isClean()) << "it is not saved";
    QTemporaryDir const folder;
    painter.surface(nyx::SurfaceId(1))->addLayer(0);
    std::string const path = folder.filePath("scene.json").toStdString();
    EXPECT_EQ(host.saveScene(path), "");
    EXPECT_TRUE(host.undoStack().isClean());
    EXPECT_EQ(host.loadScene(path), "");
    EXPECT_EQ(host.root().painterManager()->painter()->surface(nyx::SurfaceId(1))->layers().size(),
              3u);
}

#if !defined(QT_NO_DEBUG) && GTEST_HAS_DEATH_TEST
TEST(HostDeathTest, AMacroThatOutlivesItsStackIsCaughtInDebugBuilds) {
    auto const manual = nyx::embedded::RenderTaskQueue::Mode::Manual;
    EXPECT_DEATH(Host(manual).undoStack().beginMacro("M"), "a macro is open");
}
#endif
