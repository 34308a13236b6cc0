#include "support/TestScene.h"

#include "nyxrender/nyxGroup_item.h"
#include "nyxrender/nyxScene_hierarchy.h"
#include "nyxrender/nyxShader.h"
#include "nyxrender/nyx_material.h"
#include "zcore/ZUndoCommand.h"
#include "zcore/ZUndoStack.h"
#include "zsg/materials/ISceneMaterialManager.h"

#include <gmock/gmock.h>

#include <utility>
#include <vector>

using testing::ElementsAre;
using zsg::MaterialColorPlace;

namespace {

using Bindings = std::vector<std::pair<MaterialColorPlace, nyx::ColorId>>;

class MaterialManager : public TestScene {
protected:
    static void rebind(zsg::IMaterialEdit* edit, Bindings const& bindings) {
        edit->beginEdit();
        for (auto const& [place, color] : bindings) {
            edit->bindColor(place, color);
        }
        edit->endEdit();
    }

    ZUndoStack stack;
    SmallScene const made = addSmallScene();
    std::unique_ptr<zsg::ISceneMaterialManager> const manager = renderer.materialManager(&stack);
};

} // namespace

TEST_F(MaterialManager, OneClosedEditIsOneUndoableStep) {
    EXPECT_EQ(manager->materialEdit(made.fabric), nullptr) << "none made yet";
    EXPECT_EQ(manager->createMaterialEdit(nyx::MaterialId(99)), nullptr);
    zsg::IMaterialEdit* const edit = manager->createMaterialEdit(made.fabric);
    ASSERT_EQ(manager->createMaterialEdit(made.fabric), edit);
    ASSERT_EQ(manager->materialEdit(made.fabric), edit);
    renderer.bindColor(made.fabric, 0, "trim", made.cover);
    EXPECT_THAT(edit->colorPlaces(made.cover),
                ElementsAre(MaterialColorPlace{1, "color"}, MaterialColorPlace{0, "trim"}))
        << "the material's own order";
    EXPECT_TRUE(edit->colorPlaces(made.green).empty()) << "only what is bound itself";

    std::string const before = renderer.dump();
    edit->bindColor({1, "color"}, made.blue); // no edit is open
    edit->endEdit();
    edit->beginEdit();
    edit->bindColor({1, "color"}, made.blue);
    edit->bindColor({0, "trim"}, made.green);
    edit->bindColor({1, "color"}, made.red);
    edit->bindColor({7, "nowhere"}, made.red);
    EXPECT_EQ(renderer.dump(), before) << "nothing happens before the edit closes";
    edit->endEdit();
    std::string const after = renderer.dump();
    EXPECT_EQ(edit->colorPlaces(made.red).size(), 2u);
    ASSERT_EQ(stack.count(), 1);
    EXPECT_EQ(stack.text(0), "Edit Material Fabric");
    EXPECT_EQ(stack.command(0)->id(), ZCommandId::EditMaterial);
    EXPECT_TRUE(stack.undo());
    EXPECT_EQ(renderer.dump(), before);
    EXPECT_TRUE(stack.redo());
    EXPECT_EQ(renderer.dump(), after);

    rebind(edit, {{{2, "seam"}, made.blue}, {{2, "seam"}, made.red}});
    EXPECT_EQ(stack.count(), 1) << "changed nothing in the end";
}

TEST_F(MaterialManager, WorksWithoutAStackAndAfterItsMaterialIsGone) {
    auto const plain = renderer.materialManager(nullptr);
    zsg::IMaterialEdit* const direct = plain->createMaterialEdit(made.frame);
    rebind(direct, {{{1, "color"}, made.red}});
    EXPECT_EQ(renderer.material(made.frame)->places.at(0).color, made.red);
    EXPECT_TRUE(manager->isMaterialInUse(made.fabric));
    EXPECT_FALSE(manager->isMaterialInUse(made.frame));
    EXPECT_FALSE(manager->isMaterialInUse(nyx::MaterialId(99)));

    zsg::IMaterialEdit* const edit = manager->createMaterialEdit(made.fabric);
    rebind(edit, {{{2, "seam"}, made.blue}});
    edit->beginEdit();
    edit->bindColor({2, "seam"}, made.green);
    ASSERT_EQ(renderer.loadSceneText(nyx::embedded::Renderer().saveSceneText()), "");
    edit->endEdit();
    EXPECT_EQ(stack.count(), 1);
    EXPECT_TRUE(edit->colorPlaces(made.blue).empty());
    EXPECT_FALSE(stack.undo()) << "there is nothing left to give the colour back to";
}

TEST_F(MaterialManager, MaterialFunctionsReadAndWriteTheRecord) {
    EXPECT_EQ(nyx_material_from_id(nullptr, made.fabric), nullptr);
    EXPECT_EQ(nyx_material_from_id(scene(), nyx::MaterialId(99)), nullptr);
    nyxMaterial* const fabric = nyx_material_from_id(scene(), made.fabric);
    EXPECT_STREQ(nyx_material_name(*fabric), "Fabric");
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
    nyx_material_set_metadata(*fabric, "{\"a\":1}");
    EXPECT_STREQ(nyx_material_metadata(*fabric), "{\"a\":1}");
    EXPECT_TRUE(renderer.setMaterialItems(made.fabric, {4, 2}));
    EXPECT_THAT(nyx_material_items(*fabric), ElementsAre(4u, 2u));
}

TEST_F(MaterialManager, TheHierarchyIsWalkedParentsFirstWithoutGroups) {
    nyx::GroupItemId const room = renderer.addGroup("Room");
    nyx::GroupItemId const stage = renderer.addGroup("Stage", room);
    nyx::ObjectId const lamp = renderer.addLight("Lamp", room);
    nyx::ObjectId const shade = renderer.addObject("Shade", nyx::GroupItemId(lamp.toUint()));
    nyx::ObjectId const sofa = renderer.addObject("Sofa", stage, made.frame);
    EXPECT_FALSE(renderer.addGroup("Lost", nyx::GroupItemId(99)).isValid());
    EXPECT_TRUE(manager->isMaterialInUse(made.frame));

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
