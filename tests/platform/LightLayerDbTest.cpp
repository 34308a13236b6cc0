#include "nyxrender/nyxLight_layer_db.h"

#include "nyxrender/nyxGroup_item.h"
#include "nyxrender/nyxScene_hierarchy.h"
#include "nyxrender/nyxShader.h"
#include "support/TestScene.h"

using Layer = nyx::LightLayerId;
using Light = nyx::ObjectId;
using Flags = nyx::Flags<layerFlags>;

namespace {

constexpr Layer any{};
constexpr Flags inverted = layerFlags::Inverted;
constexpr Flags deleted = layerFlags::Deleted;

/// The live layers with their flags and lights: "1 Default: 3 4; 2 Key/1: 5".
std::string text(nyxLight_layer_db const& db) {
    std::string text;
    for (Layer const layer : db.get_layers()) {
        text += (text.empty() ? "" : "; ") + std::to_string(layer.toUint()) + ' ' +
                db.get_layer_name(layer);
        if (db.flags(layer).bits() != 0) {
            text += '/' + std::to_string(db.flags(layer).bits());
        }
        text += ':';
        for (Light const light : db.get_lights(layer)) {
            text += ' ' + std::to_string(light.toUint());
            EXPECT_TRUE(db.contains(layer, light));
        }
    }
    return text;
}

class LightLayerDbTest : public TestScene {
protected:
    LightLayerDbTest() {
        nyx::GroupItemId const group = renderer.addGroup("Rig");
        lamp = renderer.addLight("Lamp", group);
        spot = renderer.addLight("Spot", group);
        chair = renderer.addObject("Chair", group);
    }

    /// The masks of the lights' shaders.
    std::string masks() {
        std::string text;
        nyx_scene_hierarchy_get(scene())->walk([&](nyxGroup_item const& item) {
            EXPECT_EQ(item.shader() != nullptr, item.is_light());
            EXPECT_EQ(item.light_layer_mask(),
                      item.shader() ? item.shader()->light_layer_mask() : 0);
            text += (text.empty() ? "" : " ") + std::to_string(item.light_layer_mask());
        });
        return text;
    }

    nyxLight_layer_db& db = *nyx_light_layer_db_get(*scene());
    Light lamp, spot, chair; ///< 2, 3 and 4
};

} // namespace

TEST_F(LightLayerDbTest, aSceneStartsWithOneLayerThatHasItsLights) {
    EXPECT_EQ(text(db), "1 Default: 2 3");
    EXPECT_EQ(db.environment_light_mask(), 1u);
    EXPECT_EQ(masks(), "1 1 0");
    nyxLight_layer_db const empty;
    EXPECT_EQ(text(empty), "");
    EXPECT_EQ(empty.get_layer_count(), 0u);
    EXPECT_EQ(empty.environment_light_mask(), 0u);
}

TEST_F(LightLayerDbTest, lightsAreInOneLayerAndTheirShadersFollow) {
    Layer const key = db.create_layer("Key", any);
    Layer const rim = db.create_layer(nullptr, any);
    EXPECT_EQ(key, Layer(2));
    EXPECT_EQ(rim, Layer(3));
    db.add_lights({lamp, lamp, chair, Light(1), Light(77), Light()}, key);
    EXPECT_EQ(text(db), "1 Default: 3; 2 Key: 2; 3 :");
    db.add_lights({lamp, spot}, rim);
    EXPECT_EQ(masks(), "4 4 0");
    db.remove_lights({lamp}, key); // where it is not
    EXPECT_EQ(text(db), "1 Default:; 2 Key:; 3 : 2 3");
    db.remove_lights({lamp, chair}, rim);
    EXPECT_EQ(text(db), "1 Default: 2; 2 Key:; 3 : 3");
    EXPECT_EQ(masks(), "1 4 0");
    for (Layer const unknown : {Layer(0), Layer(9), Layer(33), any}) {
        db.add_lights({lamp}, unknown);
        db.remove_lights({lamp}, unknown);
        db.set_flags(unknown, inverted);
        db.set_layer_name(unknown, "None");
        db.delete_layer(unknown);
        db.clone_layer(unknown, key);
        EXPECT_EQ(db.get_layer_name(unknown), nullptr);
        EXPECT_EQ(db.flags(unknown), Flags());
        EXPECT_EQ(db.layer_bitmask(unknown), 0u);
        EXPECT_FALSE(db.contains(unknown, lamp));
        EXPECT_TRUE(db.get_lights(unknown).empty());
    }
    EXPECT_EQ(text(db), "1 Default: 2; 2 Key:; 3 : 3");
    for (std::uint32_t const mask : {0u, 3u, 8u, 0x80000000u}) {
        EXPECT_EQ(db.layer_id_from_mask(mask), any) << mask;
    }
    EXPECT_EQ(db.layer_id_from_mask(db.layer_bitmask(rim)), rim);
}

TEST_F(LightLayerDbTest, aDeletedLayerKeepsAllButItsLights) {
    Layer const key = db.create_layer("Key", any);
    db.set_flags(key, inverted);
    db.add_lights({lamp}, key);
    db.delete_n_remap_layer(*scene(), key);
    EXPECT_EQ(text(db), "1 Default: 2 3");
    EXPECT_EQ(masks(), "1 1 0");
    EXPECT_EQ(db.get_layer_count(), 1u);
    EXPECT_EQ(db.flags(key).bits(), 0x11u);
    EXPECT_STREQ(db.get_layer_name(key), "Key");
    EXPECT_EQ(db.layer_bitmask(key), 2u);
    EXPECT_EQ(db.layer_id_from_mask(2), key);
    EXPECT_EQ(db.find_unique_name("Key"), "Key 1");
    EXPECT_EQ(db.create_layer("Rim", any), Layer(3));
    db.set_flags(key, inverted);
    EXPECT_EQ(text(db), "1 Default: 2 3; 2 Key/1:; 3 Rim:");
    db.delete_layer(Layer(1)); // where would its lights go?
    db.add_lights({spot}, key);
    db.delete_layer(key); // the shaders of a scene's own database follow here, too
    EXPECT_EQ(text(db), "1 Default: 2 3; 3 Rim:");
    EXPECT_EQ(masks(), "1 1 0");
}

TEST_F(LightLayerDbTest, namesAreNumberedAndClonesTakeFlagsAndName) {
    EXPECT_EQ(db.find_unique_name("Default"), "Default 1");
    Layer const second = db.create_layer("Default 1", any);
    EXPECT_EQ(db.find_unique_name("Default 1"), "Default 2");
    EXPECT_EQ(db.find_unique_name("Default 7"), "Default 7");
    EXPECT_EQ(db.find_unique_name(""), "");
    EXPECT_EQ(db.find_unique_name(nullptr), "");
    db.set_flags(second, Flags::fromBits(0x13));
    Layer const clone = db.create_layer("dummy", any);
    db.add_lights({lamp}, clone);
    db.clone_layer(clone, second);
    db.clone_layer(clone, clone);
    EXPECT_EQ(text(db), "1 Default: 3; 3 Default 2/3: 2");
    db.set_layer_name(clone, nullptr);
    EXPECT_STREQ(db.get_layer_name(clone), "");
}

TEST_F(LightLayerDbTest, thereAreThirtyTwoLayersAndDeletedOnesCount) {
    nyxLight_layer_db copy;
    EXPECT_EQ(copy.create_layer("Fifth", Layer(5)), Layer(5));
    EXPECT_EQ(copy.create_layer("Fifth", Layer(5)), any);
    EXPECT_EQ(copy.create_layer("None", Layer(0)), any);
    EXPECT_EQ(copy.create_layer("None", Layer(33)), any);
    EXPECT_EQ(copy.create_layer("Sixth", any), Layer(6));
    EXPECT_EQ(copy.create_layer("Last", Layer(32)), Layer(32));
    EXPECT_EQ(copy.create_layer("First", any), Layer(1)); // the lowest gap
    renderer.faults().failCreations = 1;
    EXPECT_EQ(db.create_layer("None", any), any);
    for (std::uint32_t id = 2; id <= 32; ++id) {
        EXPECT_EQ(db.create_layer("Layer", any), Layer(id));
        db.delete_layer(Layer(id));
    }
    EXPECT_EQ(db.create_layer("Layer", any), any);
}

TEST_F(LightLayerDbTest, aCopyIsIndependentAndMayLackTheFirstLayer) {
    nyxLight_layer_db copy;
    Layer const key = copy.create_layer("Key", Layer(7));
    copy.add_lights({Light(500), Light(0xFFFFFFFE), Light(6)}, key);
    copy.remove_lights({Light(500)}, key);
    EXPECT_EQ(text(copy), "7 Key: 6 4294967294");
    copy.delete_layer(key);
    EXPECT_EQ(text(copy), "");
    copy.sync(nullptr);
    copy.sync(&copy);
    EXPECT_STREQ(copy.get_layer_name(key), "Key");

    copy.sync(&db);
    EXPECT_EQ(text(copy), "1 Default: 2 3");
    EXPECT_EQ(copy.get_layer_name(key), nullptr);
    Layer const rim = copy.create_layer("Rim", any);
    copy.add_lights({lamp, Light(500)}, rim);
    EXPECT_EQ(text(db), "1 Default: 2 3");
    copy.delete_n_remap_layer(*scene(), rim); // of a scene that does not have this layer
    EXPECT_EQ(masks(), "1 1 0");
    copy.set_flags(rim, Flags());
    copy.add_lights({lamp, Light(500)}, rim);

    db.sync(&copy); // a scene takes no lights that it does not have
    EXPECT_EQ(text(db), "1 Default: 3; 2 Rim: 2");
    EXPECT_EQ(masks(), "2 1 0");
    nyxLight_layer_db const empty;
    db.sync(&empty);
    EXPECT_EQ(text(db), "1 Default: 2 3");
    EXPECT_EQ(masks(), "1 1 0");
}

TEST_F(LightLayerDbTest, theJournalTellsTheTwoDatabasesApart) {
    nyxLight_layer_db copy;
    takeJournal();
    copy.create_layer("Unknown to the scene", any);
    copy.sync(&db);
    Layer const key = db.create_layer("Key", any);
    copy.create_layer("Key", key);
    api()->change_layer_lights(key, {lamp, spot}, 0);
    api()->change_layer_lights(key, {spot}, 1);
    api()->change_layer_lights(key, {spot}, 2); // no such operation
    EXPECT_EQ(masks(), "2 1 0");
    api()->assign_layer_lights(key, {spot, chair});
    api()->set_layer_flags(key, deleted);
    EXPECT_EQ(masks(), "2 2 0");
    EXPECT_EQ(takeJournal(), "light_layers_copy.sync\n"
                             "light_layers.create_layer \"Key\" -\n"
                             "light_layers_copy.create_layer \"Key\" 2\n"
                             "change_layer_lights 2 [2 3] 0\n"
                             "change_layer_lights 2 [3] 1\n"
                             "change_layer_lights 2 [3] 2\n"
                             "walk\n"
                             "assign_layer_lights 2 [3 4]\n"
                             "set_layer_flags 2 16\n"
                             "walk");
    EXPECT_EQ(text(db), "1 Default:");
}
