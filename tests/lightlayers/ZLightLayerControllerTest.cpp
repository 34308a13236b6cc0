#include "lightlayers/ZLightLayerController.h"

#include "lightlayers/LightScene.h"
#include "support/MarkingTranslator.h"
#include "support/UndoRoundTrip.h"
#include "zsg/core/ISceneGraph.h"

#include "zcore/ZUndoCommand.h"

using namespace zsg;

namespace {

class ZLightLayerControllerTest : public LightEditScene {
protected:
    /// Every light where it was in the beginning.
    void reset() {
        api.setFlags(accent, {});
        api.setItemsLightLayer(first, {Item(key.toUint())});
        api.setItemsLightLayer(accent, {rig});
        api.setItemsLightLayer(practical, {Item(lamp.toUint())});
        api.sync();
    }

    UndoRoundTrip trip{
        stack, [this] { return std::regex_replace(inScene(), std::regex("; "), "\n") + '\n'; }};
};

// Some of what undo leaves is not what was there before; docs/undo.md lists it.
TEST_F(ZLightLayerControllerTest, everyEditIsACommandThatGoesToAndFro) {
    EXPECT_EQ(edit.lightLayerApi(), &api);
    for (UndoRoundTrip::Edit const& wanted : std::initializer_list<UndoRoundTrip::Edit>{
             {[&] { EXPECT_TRUE(edit.deleteLayer(practical)); }, "Delete Light Layer (Practical)",
              "1 Default: 2 7"},
             // An unlisted light stays where the edit put it.
             {[&] { EXPECT_TRUE(edit.deleteLayer(accent)); }, "Delete Light Layer (Accent)",
              "1 Default: 2 4 5", "1 Default: 2 5; 2 Accent: 4"},
             {[&] { edit.setItemsLightLayer(practical, {rig}); }, "Update light layer",
              "2 Accent:; 3 Practical: 4 5 7", "2 Accent: 4; 3 Practical: 5 7"},
             // Lights that come out go to layer 1, wherever they were; those that go in were not
             // all in the layer.
             {[&] {
                  edit.setLayerFlags(accent, Flags::fromBits(0x20));
                  edit.addLightsToLayer(accent, {lamp, spot});
              },
              "Update light layer",
              "2 Accent/32: 4 5 7; 3 Practical:", "1 Default: 2 4 7; 2 Accent/32: 5; 3 Practical:"},
             {[&] {
                  edit.removeLightsFromLayer(accent, {spot, key});
              },
              "Update light layer", "1 Default: 2 4; 2 Accent: 5", "1 Default:; 2 Accent: 2 4 5"},
             // An inverted layer is edited the other way round, and the flag counts as it was then.
             {[&] {
                  edit.setLayerFlags(accent, layerFlags::Inverted);
                  edit.addLightsToLayer(accent, {spot});
                  edit.setLayerFlags(accent, {});
              },
              "Update light layer", "1 Default: 2 4; 2 Accent: 5"},
             {[&] {
                  edit.setLayerFlags(accent, Flags::fromBits(0x21));
                  edit.removeLightsFromLayer(accent, {key});
                  edit.setLayerFlags(accent, {});
              },
              "Update light layer", "1 Default:; 2 Accent: 2 4 5"},
             {[&] { EXPECT_TRUE(edit.deleteLayer(Layer(9))); }, "Delete Light Layer ()", ""},
             {[&] { EXPECT_EQ(edit.createLayer(""), none); }, "Create light layer", ""},
             {[&] { EXPECT_EQ(edit.createLayer("Accent"), Layer(4)); },
              "Create Light Layer (Accent 1)", "4 Accent 1:"}}) {
        trip.check({wanted});
        reset();
    }
}

TEST_F(ZLightLayerControllerTest, textsHaveTheContextOfTheirCommands) {
    {
        MarkingTranslator const marking;
        edit.createLayer("Rim");
        edit.deleteLayer(accent);
        edit.addLightsToLayer(practical, {key});
        edit.setItemsLightLayer(practical, {rig});
    }
    EXPECT_EQ(trip.history(), "ZUndoCommand:Create Light Layer (Rim); "
                              "ZUndoCommand:Delete Light Layer (Accent); "
                              "ZUndoCommand:Update light layer; ZUndoCommand:Update light layer");
}

TEST_F(ZLightLayerControllerTest, withoutAStackEveryCommandIsDoneOnceForGood) {
    ZLightLayerController plain(&api, nullptr);
    EXPECT_EQ(plain.createLayer("Rim"), Layer(4));
    plain.addLightsToLayer(Layer(4), {key, lamp});
    plain.removeLightsFromLayer(Layer(4), {lamp});
    plain.setItemsLightLayer(practical, {rig});
    EXPECT_TRUE(plain.deleteLayer(accent));
    EXPECT_EQ(inScene(), "1 Default: 7; 3 Practical: 4 5; 4 Rim: 2");
}

/// Deletes every command that it is given.
class RefusingStack final : public ZUndoStack {
public:
    bool push(ZUndoCommand* command) override {
        delete command;
        return false;
    }
};

TEST_F(ZLightLayerControllerTest, creationsMayMakeNothingBeRefusedOrBeDroppedAtOnce) {
    std::string const before = renderer.dump();
    renderer.faults().failCreations = 1;
    EXPECT_EQ(edit.createLayer("Rim"), none);
    EXPECT_EQ(stack.text(0), "Create light layer");
    RefusingStack refusing;
    ZLightLayerController refused(&api, &refusing);
    EXPECT_EQ(refused.createLayer("Rim"), none);
    EXPECT_FALSE(refused.deleteLayer(accent));
    EXPECT_EQ(renderer.dump(), before);
    stack.setChangeCallback([this] { stack.count() == 0 || stack.clear(); });
    EXPECT_EQ(edit.createLayer("Rim"), Layer(4));
}

// The controller goes first: when the queue goes, no command reaches the scene any more.
TEST_F(ZLightLayerControllerTest, commandsThatOutliveTheRootFail) {
    SceneGraphPars pars;
    pars.rtApi = renderer.api();
    pars.undoStack = &stack;
    std::unique_ptr<ISceneGraph> root = ISceneGraph::create(pars);
    root->lightLayerController()->createLayer("Rim");
    root->lightLayerController()->deleteLayer(accent);
    std::string const before = renderer.dump();
    bool undone = true;
    QObject::connect(root->eventQueue(), &QObject::destroyed, [&] { undone = stack.undo(); });
    testing::internal::CaptureStderr();
    root.reset();
    EXPECT_FALSE(undone);
    EXPECT_FALSE(stack.goTo(2));
    testing::internal::GetCapturedStderr();
    EXPECT_EQ(renderer.dump(), before);
}

} // namespace
