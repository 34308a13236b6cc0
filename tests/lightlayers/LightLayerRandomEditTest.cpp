#include "lightlayers/LightScene.h"

#include "nyxrender/nyxGroup_item.h"
#include "nyxrender/nyxShader.h"

#include <map>
#include <random>

using namespace zsg;

namespace {

using Light = nyx::ObjectId;
using Layer = nyx::LightLayerId;

/// The layer of each light.
struct Model : std::map<Light, Layer> {
    using std::map<Light, Layer>::map;

    void put(Layer layer, std::vector<Light> const& lights) {
        for (Light const light : lights) {
            if (contains(light) && layer <= Layer(5)) {
                at(light) = layer;
            }
        }
    }
    void take(Layer layer, std::vector<Light> const& lights) {
        for (Light const light : lights) {
            if (contains(light) && at(light) == layer) {
                at(light) = Layer(1);
            }
        }
    }
};

/// Random commands that are done, undone and redone, beside a model of the scene.
class LightLayerRandomEditTest : public LightEditScene,
                                 public testing::WithParamInterface<unsigned> {
protected:
    unsigned below(unsigned count) {
        return std::uniform_int_distribution<unsigned>(0, count - 1)(random);
    }

    void compare() {
        for (auto const& [light, layer] : model) {
            EXPECT_TRUE(renderer.lightLayers().contains(layer, light)) << light.toUint();
            nyxGroup_item const* const item =
                nyx_group_item_from_id(renderer.scene(), Item(light.toUint()));
            EXPECT_EQ(item->shader()->light_layer_mask(), 1u << (layer.toUint() - 1));
            EXPECT_EQ(api.layersOfItems({item->id()}), std::vector{layer});
        }
    }

    /// What a command must have done, and what its undo.
    void expectCommand(std::function<void()> const& done, std::function<void()> const& undone) {
        done();
        compare();
        EXPECT_TRUE(stack.undo());
        undone();
        compare();
        EXPECT_TRUE(stack.redo());
        done();
        compare();
        stack.clear();
    }

    void step() {
        Layer const layer(1 + below(6)); // 6 is unknown
        std::vector<Light> lights;
        std::vector<Item> items;
        for (unsigned i = below(4); i > 0; --i) {
            lights.push_back(std::vector{key, spot, portal, lamp, chair}[below(5)]);
            items.emplace_back(lights.back().toUint());
        }
        if (below(2) == 0) {
            items.push_back(rig);
            lights.insert(lights.end(), {spot, portal});
        }
        Model const before = model;
        // The portal is not listed, so undo does not know where it was.
        auto const putBackTheListed = [&] {
            Layer const left = model.at(portal);
            model = before;
            model.at(portal) = left;
        };
        switch (below(4)) {
        case 0:
            edit.removeLightsFromLayer(layer, lights);
            expectCommand([&] { model.take(layer, lights); }, [&] { model.put(layer, lights); });
            break;
        case 1:
            edit.addLightsToLayer(layer, lights);
            expectCommand([&] { model.put(layer, lights); }, [&] { model.take(layer, lights); });
            break;
        case 2:
            edit.setItemsLightLayer(layer, items);
            expectCommand([&] { model.put(layer, lights); }, putBackTheListed);
            break;
        default:
            edit.deleteLayer(layer);
            expectCommand([&] { model.take(layer, {key, spot, portal, lamp}); }, putBackTheListed);
            api.setFlags(layer, {}); // alive again, and empty
        }
    }

    Model model{{key, first}, {spot, accent}, {portal, accent}, {lamp, practical}};
    std::mt19937 random{GetParam()};
};

TEST_P(LightLayerRandomEditTest, theSceneAndItsMasksAgreeWithTheModelAtEveryMoment) {
    api.createLayer("Rim");
    api.createLayer("Fill");
    for (int i = 0; i < 2'000 && !HasFailure(); ++i) {
        SCOPED_TRACE(i);
        step();
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, LightLayerRandomEditTest, testing::Range(0u, 3u));

} // namespace
