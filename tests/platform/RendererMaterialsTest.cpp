#include "support/TestScene.h"

#include "nyxrender/nyxGroup_item.h"
#include "nyxrender/nyxScene_hierarchy.h"
#include "nyxrender/nyxShader.h"
#include "nyxrender/nyx_material.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

using testing::ElementsAre;

namespace {

class RendererMaterials : public TestScene {
protected:
    SmallScene const made = addSmallScene();
};

} // namespace

TEST_F(RendererMaterials, MaterialFunctionsReadAndWriteTheRecord) {
    EXPECT_EQ(nyx_material_from_id(nullptr, made.fabric), nullptr);
    EXPECT_EQ(nyx_material_from_id(scene(), nyx::MaterialId(99)), nullptr);
    nyxMaterial* const fabric = nyx_material_from_id(scene(), made.fabric);
    nyx_material_set_cmf_value(*fabric, "supplier", "Mill");
    nyx_material_set_cmf_value(*fabric, "code", nullptr);
    nyx_material_set_cmf_value(*fabric, nullptr, "ignored");
    std::string values;
    nyx_material_cmf_values(*fabric, [&](char const* key, char const* value) {
        values += std::string(key) + '=' + value + ';';
        nyx_material_clear_cmf_values(*fabric);
    });
    EXPECT_EQ(values, "code=;supplier=Mill;");
    nyx_material_cmf_values(*fabric, [](char const* key, char const*) { ADD_FAILURE() << key; });
    EXPECT_TRUE(renderer.materials().setItems(made.fabric, {4, 2}));
    EXPECT_THAT(nyx_material_items(*fabric), ElementsAre(4u, 2u));
}

TEST_F(RendererMaterials, TheHierarchyIsWalkedParentsFirstWithoutGroups) {
    nyx::GroupItemId const room = renderer.items().addGroup("Room");
    nyx::GroupItemId const stage = renderer.items().addGroup("Stage", room);
    nyx::ObjectId const lamp = renderer.items().addLight("Lamp", room);
    nyx::ObjectId const shade =
        renderer.items().addObject("Shade", nyx::GroupItemId(lamp.toUint()));
    nyx::ObjectId const sofa = renderer.items().addObject("Sofa", stage, made.frame);
    EXPECT_FALSE(renderer.items().addGroup("Lost", nyx::GroupItemId(99)).isValid());
    EXPECT_TRUE(renderer.materials().isUsed(made.frame));

    std::vector<nyx::ObjectId> walked;
    nyx_scene_hierarchy_get(scene())->walk([&](nyxGroup_item const& item) {
        walked.push_back(item.object_id());
        EXPECT_EQ(item.shader() != nullptr, item.is_light());
        EXPECT_EQ(item.light_layer_mask(), item.is_light() ? 1u : 0u);
    });
    EXPECT_THAT(walked, ElementsAre(made.chair, sofa, lamp, shade));
    nyxGroup_item* const group = nyx_group_item_from_id(scene(), room);
    ASSERT_EQ(group->children().size(), 2u);
    EXPECT_EQ(group->children()[1]->id().toUint(), lamp.toUint()) << "one number for both ids";
    EXPECT_FALSE(group->object_id().isValid());
    EXPECT_EQ(nyx_group_item_from_id(scene(), nyx::GroupItemId(99)), nullptr);
    EXPECT_EQ(nyx_group_item_from_id(nullptr, room), nullptr);
    EXPECT_EQ(nyx_scene_hierarchy_get(nullptr), nullptr);
}
