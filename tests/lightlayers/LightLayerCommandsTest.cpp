#include "lightlayers/LightLayerCommands.h"

#include "lightlayers/LightScene.h"
#include "support/Mishaps.h"

#include <memory>
#include <vector>

using namespace zsg;

namespace {

using LightLayerCommandsTest = LightEditScene;

TEST_F(LightLayerCommandsTest, editsOfOneLayerMergeWhenTheyDoTheSame) {
    edit.addLightsToLayer(accent, {key});
    edit.addLightsToLayer(accent, {lamp, key});
    EXPECT_EQ(trace([this] { stack.undo(); }), "copy.remove_lights [2 7 2] 2; "
                                               "change_layer_lights 2 [2 7 2] 1; "
                                               "> LightLayerUpdated 2");
    stack.redo();
    edit.removeLightsFromLayer(accent, {key}); // the other way
    edit.removeLightsFromLayer(first, {key});  // of another layer
    edit.removeLightsFromLayer(first, {lamp});
    EXPECT_EQ(stack.count(), 3);
    edit.setItemsLightLayer(first, {rig}); // of another class, though the number is the same
    edit.removeLightsFromLayer(first, {lamp});
    edit.deleteLayer(first);
    edit.deleteLayer(first);
    ZLightLayerController other(&api, &stack); // of another root
    other.removeLightsFromLayer(first, {lamp});
    edit.removeLightsFromLayer(first, {lamp});
    EXPECT_EQ(stack.count(), 9);
}

TEST_F(LightLayerCommandsTest, undoLeavesLightsBelowOtherLightsWhereTheyAre) {
    Light const bulb = renderer.items().addLight("Bulb", Item(lamp.toUint()));
    api.addLights(accent, {bulb});
    std::string const before = inScene();
    edit.deleteLayer(practical);
    EXPECT_EQ(trace([this] { stack.undo(); }),
              "copy.flags 3; copy.set_flags 3 0; set_layer_flags 3 0; > LightLayerUpdated 3; "
              "assign_layer_lights 3 [7]; > LightLayerUpdated 3");
    EXPECT_EQ(inScene(), before);
    edit.setItemsLightLayer(first, {Item(lamp.toUint())});
    EXPECT_EQ(inScene(), "1 Default: 2 7; 2 Accent: 4 5 8; 3 Practical:");
    stack.undo();
    EXPECT_EQ(inScene(), before);
    EXPECT_EQ(trace([this] { stack.redo(); }), "assign_layer_lights 1 [7]; > LightLayerUpdated 1");
}

// What undo does not bring back; docs/undo.md lists it.

TEST_F(LightLayerCommandsTest, undoOfADeletionKeepsRenamesAndFlagsAndTheEnvironmentsLayer) {
    renderer.setEnvironmentLightMask(4);
    edit.deleteLayer(practical);
    api.setLayerName(practical, "Lamps");
    edit.setLayerFlags(practical, Flags::fromBits(0x31));
    stack.undo();
    EXPECT_EQ(inScene(), "1 Default: 2; 2 Accent: 4 5; 3 Lamps/33: 7");
    EXPECT_EQ(renderer.lightLayers().environment_light_mask(), 1u);
}

TEST_F(LightLayerCommandsTest, redoOfACreationBringsTheLayerBackEmpty) {
    api.addLights(edit.createLayer("Rim"), {lamp});
    EXPECT_TRUE(stack.undo() && stack.redo());
    EXPECT_EQ(inScene(), "1 Default: 2 7; 2 Accent: 4 5; 3 Practical:; 4 Rim:");
}

TEST_F(LightLayerCommandsTest, anEmptyLayerIsLookedIntoAgainAtEachDeletion) {
    api.removeLights(practical, {lamp});
    edit.deleteLayer(practical);
    stack.undo();
    api.addLights(practical, {key});
    stack.redo();
    stack.undo();
    EXPECT_EQ(inScene(), "1 Default: 7; 2 Accent: 4 5; 3 Practical: 2");
    EXPECT_EQ(trace([this] { stack.redo(); }).find("walk"), std::string::npos);
}

struct Studio final : LightLayerCommandsTest {
    Studio() { queue.unsubscribe(this); }
    ~Studio() override { TearDown(); }
    void TestBody() override {}
    IEventQueue& events() { return queue; }

    /// From the sixth on they are no undoable edits, but a clone is made or not.
    Mishaps::Operations operations() {
        return {
            [&] { edit.createLayer("Rim"); },
            [&] { edit.deleteLayer(practical); },
            [&] { edit.addLightsToLayer(accent, {key}); },
            [&] { edit.removeLightsFromLayer(accent, {spot}); },
            [&] {
                edit.setItemsLightLayer(first, {Item(spot.toUint()), Item(lamp.toUint())});
            },
            [&] { api.cloneLayer(accent); },
            [&] { api.setLayerName(accent, "Warm"); },
            [&] { api.moveLightsToNewLayer({key}); },
            [&] { api.sync(); },
            [&] { edit.setLayerFlags(accent, layerFlags::Inverted); },
        };
    }

    void check(std::size_t operation) {
        EXPECT_EQ(stack.count(), 0);
        if (operation < 6) {
            EXPECT_EQ(inScene(), before);
        }
    }

    std::string const before = inScene();
};

// The stack takes back what an edit did before it failed.
TEST(LightLayerMishaps, whateverGoesWrongNothingStaysWithoutAnEntry) { Mishaps::inTurn<Studio>(); }

using Layer = nyx::LightLayerId;
using Light = nyx::ObjectId;
using Item = nyx::GroupItemId;

/// An API of an application: layer 1 has the items 10 and 11, layer 2 has 12. Groups, which have
/// numbers from 20, touch layer 2.
class OtherApi final : public ILightLayerApi {
public:
    nyx::Unique_array<Layer> layers() const override {
        Layer const ids[] = {Layer(1), Layer(2), Layer(3)};
        return {ids, 3};
    }
    std::vector<Light> getLayerItems(Layer layer) const override {
        return layer == Layer(1)   ? std::vector{Light(10), Light(11)}
               : layer == Layer(2) ? std::vector{Light(12)}
                                   : std::vector<Light>();
    }
    std::vector<Layer> layersOfItems(nyx::Span<Item> items) const override {
        return items.empty() ? std::vector<Layer>() : std::vector{Layer(2)};
    }
    void setItemsLightLayer(Layer layer, nyx::Span<Item> items) override {
        set += std::to_string(layer.toUint()) + ':' + numbers(items) + "; ";
    }
    void sync() override {}
    Layer cloneLayer(Layer) override { return {}; }
    unsigned layerCount() const override { return 3; }
    nyx::Unique_array<Light> lights(Layer) const override { return {}; }
    bool contains(Layer, Light) const override { return false; }
    Layer createLayer(std::string) override { return {}; }
    void deleteLayer(Layer) override {}
    void setLayerName(Layer, std::string) override {}
    std::string layerName(Layer) const override { return {}; }
    void moveLightsToNewLayer(nyx::Span<Light>) override {}
    void addLights(Layer, nyx::Span<Light>) override {}
    void removeLights(Layer, nyx::Span<Light>) override {}
    void setFlags(Layer, nyx::Flags<layerFlags>) override {}
    nyx::Flags<layerFlags> flags(Layer) const override { return {}; }
    void dump() const override {}

    std::string set;
};

TEST(ZSetItemLightLayerCommandTest, derivesFromAnotherApiWhatUndoNeeds) {
    OtherApi api;
    AliveGuard const guard;
    ZSetItemLightLayerCommand lights({&api, guard}, Layer(3), {Item(11), Item(12)});
    EXPECT_TRUE(lights.redo() && lights.undo());
    EXPECT_EQ(api.set, "3: 11 12; 1: 11; 2: 12; ");
    api.set.clear();
    // What is below a group is not known, so all lights of the layers that it touches go back.
    ZSetItemLightLayerCommand group({&api, guard}, Layer(3), {Item(10), Item(20)});
    EXPECT_TRUE(group.redo() && group.undo());
    EXPECT_EQ(api.set, "3: 10 20; 1: 10; 2: 12; ");
}

} // namespace
