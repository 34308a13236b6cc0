#include "lightlayers/ZLightLayerController.h"

#include "lightlayers/LightScene.h"
#include "zcore/ZUndoCommand.h"
#include "zcore/ZUndoStack.h"

using namespace zsg;

namespace {

class ZLightLayerControllerTest : public LightScene {
protected:
    void TearDown() override { stack.clear(); }

    /// What an edit does, its number and text, and what undo and redo do.
    std::string story(std::function<void()> const& run) {
        std::string story = trace(run);
        ZUndoCommand const& made = *stack.command(stack.index() - 1);
        story += "\n= " + std::to_string(static_cast<int>(made.id())) + ' ' +
                 made.text().toStdString() + "\nundo" + trace([this] { stack.undo(); }) + "\nredo";
        return story + trace([this] { stack.redo(); });
    }

    ZUndoStack stack;
    ZLightLayerController edit{&api, &stack};
};

TEST_F(ZLightLayerControllerTest, everyEditIsACommandThatGoesToAndFro) {
    EXPECT_EQ(edit.lightLayerApi(), &api);
    EXPECT_EQ(story([&] { EXPECT_EQ(edit.createLayer("Accent"), Layer(4)); }), R"(
layers.find_unique_name "Accent"
layers.create_layer "Accent 1" -
copy.create_layer "Accent 1" 4
> LightLayerUpdated 4
copy.get_layer_name 4
= 184 Create Light Layer (Accent 1)
undo
copy.delete_layer 4
layers.delete_n_remap_layer 4
> LightLayerUpdated 4
redo
copy.flags 4
copy.set_flags 4 0
set_layer_flags 4 0
> LightLayerUpdated 4)");
    EXPECT_EQ(story([&] { EXPECT_TRUE(edit.deleteLayer(accent)); }), R"(
copy.get_layer_name 2
layers.layer_bitmask 2
walk
copy.delete_layer 2
layers.delete_n_remap_layer 2
> LightLayerUpdated 2
= 185 Delete Light Layer (Accent)
undo
copy.flags 2
copy.set_flags 2 0
set_layer_flags 2 0
> LightLayerUpdated 2
assign_layer_lights 2 [4]
> LightLayerUpdated 2
redo
copy.delete_layer 2
layers.delete_n_remap_layer 2
> LightLayerUpdated 2)");
    EXPECT_EQ(story([&] {
                  edit.setItemsLightLayer(Layer(4), {Item(7), rig});
              }),
              R"(
walk
layers.layer_id_from_mask 1
layers.layer_id_from_mask 4
assign_layer_lights 4 [4 5 7]
> LightLayerUpdated 4
= 185 Update light layer
undo
assign_layer_lights 1 [4]
> LightLayerUpdated 1
assign_layer_lights 3 [7]
> LightLayerUpdated 3
redo
assign_layer_lights 4 [4 5 7]
> LightLayerUpdated 4)");
    EXPECT_EQ(inScene(), "1 Default: 2; 3 Practical:; 4 Accent 1: 4 5 7");
    edit.deleteLayer(Layer(9));
    EXPECT_EQ(stack.text(3), "Delete Light Layer ()");
}

TEST_F(ZLightLayerControllerTest, anInvertedLayerIsEditedTheOtherWayRound) {
    std::string const add = "copy.add_lights [2 7] 2\nchange_layer_lights 2 [2 7] 0"
                            "\n> LightLayerUpdated 2\n";
    std::string const remove = "copy.remove_lights [2 7] 2\nchange_layer_lights 2 [2 7] 1"
                               "\n> LightLayerUpdated 2\n";
    for (unsigned const inverted : {0u, 1u}) {
        for (bool const removes : {false, true}) {
            edit.setLayerFlags(accent, Flags::fromBits(0x20 | inverted));
            std::string const told = story([&] {
                removes ? edit.removeLightsFromLayer(accent, {key, lamp})
                        : edit.addLightsToLayer(accent, {key, lamp});
                api.setFlags(accent, Flags::fromBits(1 - inverted)); // no longer matters
            });
            bool const takesOut = (inverted == 1) != removes;
            std::string const& done = takesOut ? remove : add;
            EXPECT_EQ(told.find("\ncopy.flags 2\n" + done), 0u) << told;
            EXPECT_EQ(told.substr(told.find("= ")) + '\n', "= 185 Update light layer\nundo\n" +
                                                               (takesOut ? add : remove) +
                                                               "redo\n" + done);
            stack.clear();
        }
    }
}

TEST_F(ZLightLayerControllerTest, withoutAStackEveryCommandIsDoneOnceForGood) {
    ZLightLayerController plain(&api, nullptr);
    EXPECT_EQ(plain.createLayer("Rim"), Layer(4));
    EXPECT_EQ(plain.createLayer(""), none);
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
    EXPECT_EQ(story([&] { EXPECT_EQ(edit.createLayer(""), none); }), R"(
= 184 Create light layer
undo
copy.delete_layer -
layers.delete_n_remap_layer -
> LightLayerUpdated invalid
redo)");
    renderer.faults().failCreations = 1;
    EXPECT_EQ(edit.createLayer("Rim"), none);
    EXPECT_EQ(stack.text(1), "Create light layer");
    RefusingStack refusing;
    ZLightLayerController refused(&api, &refusing);
    EXPECT_EQ(refused.createLayer("Rim"), none);
    EXPECT_FALSE(refused.deleteLayer(accent));
    EXPECT_EQ(renderer.dump(), before);
    stack.setChangeCallback([this] { stack.count() == 0 || stack.clear(); });
    EXPECT_EQ(edit.createLayer("Rim"), Layer(4));
}

} // namespace
