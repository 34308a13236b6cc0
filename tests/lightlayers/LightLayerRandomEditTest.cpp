#include "lightlayers/LightScene.h"
#include "lightlayers/ZLightLayerController.h"
#include "nyxrender/nyxGroup_item.h"
#include "nyxrender/nyxShader.h"
#include "zcore/ZUndoStack.h"

#include <map>
#include <random>

using namespace zsg;

namespace {

/// Random changes of which light is in which layer, directly and as commands that are undone and
/// redone, beside a model: the layer of each light in the scene and in the working copy.
class LightLayerRandomEditTest : public LightScene, public testing::WithParamInterface<unsigned> {
protected:
    using Model = std::map<Light, Layer>;

    void TearDown() override { stack.clear(); }

    unsigned below(std::size_t count) {
        return std::uniform_int_distribution<unsigned>(0, static_cast<unsigned>(count) - 1)(random);
    }
    static void put(Model& model, Layer layer, std::vector<Light> const& lights) {
        for (Light const light : lights) {
            if (model.contains(light) && layer <= Layer(5)) {
                model[light] = layer;
            }
        }
    }
    static void take(Model& model, Layer layer, std::vector<Light> const& lights) {
        for (Light const light : lights) {
            if (model.contains(light) && model[light] == layer) {
                model[light] = Layer(1);
            }
        }
    }
    void undoAndRedo() { EXPECT_TRUE(stack.undo() && stack.redo()); }

    void step() {
        Layer const layer(1 + below(6)); // 6 is unknown
        std::vector<Light> lights;
        for (unsigned i = below(4); i > 0; --i) {
            lights.push_back(std::vector{key, spot, portal, lamp, chair}[below(5)]);
        }
        bool const group = below(2);
        std::vector<Item> items;
        for (Light const light : lights) {
            items.emplace_back(light.toUint());
        }
        if (group) {
            items.push_back(rig);
            lights.insert(lights.end(), {spot, portal});
        }
        switch (below(8)) {
        case 0:
            api.sync();
            copy = scene;
            break;
        case 1:
            api.addLights(layer, lights);
            put(copy, layer, lights), put(scene, layer, lights);
            break;
        case 2:
            edit.removeLightsFromLayer(layer, lights);
            undoAndRedo();
            for (Model* const model : {&copy, &scene}) {
                take(*model, layer, lights), put(*model, layer, lights);
                take(*model, layer, lights);
            }
            break;
        case 3:
            edit.addLightsToLayer(layer, lights);
            undoAndRedo();
            put(copy, layer, lights), put(scene, layer, lights);
            break;
        case 4:
            edit.setItemsLightLayer(layer, items);
            undoAndRedo();
            put(scene, layer, lights);
            break;
        case 5: // which also moves a light that is in the layer in the scene alone
            edit.deleteLayer(layer);
            undoAndRedo();
            for (Model* const model : {&copy, &scene}) {
                for (auto const& [light, current] : Model(*model)) {
                    take(*model, layer, {light});
                }
            }
            api.setFlags(layer, {});
            break;
        case 6: {
            std::vector<Light> moved;
            for (Light const light : lights) {
                if (scene.contains(light) && scene[light] == first) {
                    moved.push_back(light);
                }
            }
            renderer.faults().failCreations = moved.empty() ? 0 : 1; // layers do not come back
            api.moveLightsToNewLayer(lights);
            put(copy, first, moved);
            break;
        }
        default:
            edit.setLayerFlags(layer, Flags::fromBits(0));
        }
        stack.clear();
    }

    ZUndoStack stack;
    ZLightLayerController edit{&api, &stack};
    Model scene{{key, first}, {spot, accent}, {portal, accent}, {lamp, practical}}, copy = scene;
    std::mt19937 random{GetParam()};
};

TEST_P(LightLayerRandomEditTest, sceneWorkingCopyAndMasksAgreeWithTheModelAfterEveryStep) {
    api.createLayer("Rim");
    api.createLayer("Fill");
    for (int i = 0; i < 10'000 && !HasFailure(); ++i) {
        SCOPED_TRACE(i);
        step();
        for (auto const& [light, layer] : copy) {
            EXPECT_TRUE(api.contains(layer, light)) << light.toUint();
        }
        for (auto const& [light, layer] : scene) {
            EXPECT_TRUE(renderer.lightLayers().contains(layer, light)) << light.toUint();
            nyxGroup_item const* const item =
                nyx_group_item_from_id(renderer.scene(), Item(light.toUint()));
            EXPECT_EQ(item->shader()->light_layer_mask(), 1u << (layer.toUint() - 1));
            EXPECT_EQ(api.layersOfItems({item->id()}), std::vector{layer});
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, LightLayerRandomEditTest, testing::Range(0u, 3u));

} // namespace
