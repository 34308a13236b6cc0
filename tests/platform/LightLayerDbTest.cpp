#include "support/TestScene.h"

#include "nyxrender/nyxLight_layer_db.h"

using Layer = nyx::LightLayerId;
using Light = nyx::ObjectId;
using Flags = nyx::Flags<layerFlags>;

namespace {

/// A group (1) of two lights and a chair. That the masks of shaders follow is tested with the
/// light-layer API, by random edits.
class LightLayerDbTest : public TestScene {
protected:
    /// The live layers with their flags and lights: "1 Default: 2 3; 2 Key/1:".
    static std::string text(nyxLight_layer_db const& db) {
        std::string text;
        for (Layer const layer : db.get_layers()) {
            unsigned const flags = db.flags(layer).bits();
            text += (text.empty() ? "" : "; ") + std::to_string(layer.toUint()) + ' ' +
                    db.get_layer_name(layer) + (flags ? '/' + std::to_string(flags) : "") + ':';
            for (Light const light : db.get_lights(layer)) {
                text += ' ' + std::to_string(light.toUint());
            }
        }
        return text;
    }

    nyx::GroupItemId const group = renderer.items().addGroup("Rig");
    Light const lamp = renderer.items().addLight("Lamp", group);    // 2
    Light const spot = renderer.items().addLight("Spot", group);    // 3
    Light const chair = renderer.items().addObject("Chair", group); // 4
    nyxLight_layer_db& db = renderer.lightLayers();
    static constexpr Layer any{};
};

} // namespace

TEST_F(LightLayerDbTest, onlyLightsAreInLayersAndUnknownLayersAnswerNothing) {
    EXPECT_EQ(text(db), "1 Default: 2 3");
    EXPECT_EQ(db.environment_light_mask(), 1u);
    EXPECT_EQ(db.create_layer("Key", any), Layer(2));
    EXPECT_EQ(db.create_layer(nullptr, any), Layer(3));
    db.add_lights({lamp, lamp, chair, Light(1), Light(77), Light()}, Layer(2));
    api()->assign_layer_lights(Layer(3), {spot, chair});
    api()->change_layer_lights(Layer(3), {spot}, 2); // no such operation
    EXPECT_EQ(text(db), "1 Default:; 2 Key: 2; 3 : 3");
    for (Layer const unknown : {Layer(0), Layer(9), Layer(33), any}) {
        db.add_lights({lamp}, unknown);
        db.remove_lights({lamp}, unknown);
        db.set_flags(unknown, layerFlags::Inverted);
        db.set_layer_name(unknown, "None");
        db.delete_layer(unknown);
        db.clone_layer(unknown, Layer(2));
        EXPECT_EQ(db.get_layer_name(unknown), nullptr);
        EXPECT_EQ(db.flags(unknown), Flags());
        EXPECT_EQ(db.layer_bitmask(unknown), 0u);
        EXPECT_FALSE(db.contains(unknown, lamp));
        EXPECT_TRUE(db.get_lights(unknown).empty());
    }
    EXPECT_EQ(text(db), "1 Default:; 2 Key: 2; 3 : 3");
    for (std::uint32_t const mask : {0u, 3u, 8u, 0x80000000u}) {
        EXPECT_EQ(db.layer_id_from_mask(mask), any) << mask;
    }
}

TEST_F(LightLayerDbTest, deletedLayersKeepIdNameFlagsAndMask) {
    Layer const key = db.create_layer("Key", any);
    db.set_flags(key, layerFlags::Inverted);
    db.delete_layer(key); // as delete_n_remap_layer(), for the scene's own database
    db.delete_layer(Layer(1));
    EXPECT_EQ(text(db), "1 Default: 2 3");
    EXPECT_EQ(db.get_layer_count(), 1u);
    EXPECT_EQ(db.flags(key).bits(), 0x11u);
    EXPECT_EQ(db.layer_id_from_mask(2), key);
    EXPECT_EQ(db.find_unique_name(nullptr), "");
    Layer const clone = db.create_layer("dummy", any);
    db.clone_layer(clone, key);
    db.clone_layer(clone, clone);
    EXPECT_EQ(text(db), "1 Default: 2 3; 3 Key 1/1:");
}

TEST_F(LightLayerDbTest, thereAreThirtyTwoLayersAndDeletedOnesCount) {
    nyxLight_layer_db copy;
    for (auto const& [wanted, made] :
         std::vector<std::pair<Layer, Layer>>{{Layer(5), Layer(5)},
                                              {Layer(5), any},
                                              {Layer(0), any},
                                              {Layer(33), any},
                                              {any, Layer(6)},
                                              {Layer(32), Layer(32)},
                                              {any, Layer(1)}}) { // then the lowest gap
        EXPECT_EQ(copy.create_layer("Layer", wanted), made);
    }
    for (std::uint32_t id = 2; id <= 32; ++id) {
        EXPECT_EQ(db.create_layer("Layer", any), Layer(id));
        db.delete_layer(Layer(id));
    }
    EXPECT_EQ(db.create_layer("Layer", any), any);
}

TEST_F(LightLayerDbTest, aCopyIsIndependentAndMayLackTheFirstLayer) {
    nyxLight_layer_db copy;
    EXPECT_EQ(text(copy), "");
    copy.create_layer("Key", Layer(7));
    copy.add_lights({Light(500), Light(0xFFFFFFFE), Light(6)}, Layer(7));
    copy.remove_lights({Light(500)}, Layer(7));
    EXPECT_EQ(text(copy), "7 Key: 6 4294967294");
    copy.delete_layer(Layer(7));
    copy.sync(nullptr);
    copy.sync(&copy);
    EXPECT_STREQ(copy.get_layer_name(Layer(7)), "Key");

    copy.sync(&db);
    Layer const rim = copy.create_layer("Rim", any);
    copy.add_lights({lamp, Light(500)}, rim);
    EXPECT_EQ(text(copy), "1 Default: 3; 2 Rim: 2 500");
    EXPECT_EQ(text(db), "1 Default: 2 3");
    db.sync(&copy); // a scene takes no lights that it does not have
    EXPECT_EQ(text(db), "1 Default: 3; 2 Rim: 2");
    nyxLight_layer_db const empty;
    db.sync(&empty);
    EXPECT_EQ(text(db), "1 Default: 2 3");
}
