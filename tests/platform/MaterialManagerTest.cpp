#include "nyxembedded/MaterialManager.h"

#include "support/TestScene.h"

#include "zcore/ZUndoCommand.h"
#include "zcore/ZUndoStack.h"

#include <gmock/gmock.h>

#include <utility>
#include <vector>

using testing::ElementsAre;
using zsg::MaterialColorPlace;

namespace {

using Bindings = std::vector<std::pair<MaterialColorPlace, nyx::ColorId>>;

class MaterialManagerTest : public TestScene {
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
    nyx::embedded::MaterialManager manager{renderer, &stack};
};

} // namespace

TEST_F(MaterialManagerTest, OneClosedEditIsOneUndoableStep) {
    EXPECT_EQ(manager.materialEdit(made.fabric), nullptr) << "none made yet";
    EXPECT_EQ(manager.createMaterialEdit(nyx::MaterialId(99)), nullptr);
    zsg::IMaterialEdit* const edit = manager.createMaterialEdit(made.fabric);
    ASSERT_EQ(manager.createMaterialEdit(made.fabric), edit);
    ASSERT_EQ(manager.materialEdit(made.fabric), edit);
    renderer.materials().bindColor(made.fabric, 0, "trim", made.cover);
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

TEST_F(MaterialManagerTest, WorksWithoutAStackAndAfterItsMaterialIsGone) {
    nyx::embedded::MaterialManager plain(renderer, nullptr);
    zsg::IMaterialEdit* const direct = plain.createMaterialEdit(made.frame);
    rebind(direct, {{{1, "color"}, made.red}});
    EXPECT_EQ(renderer.materials().record(made.frame)->places.at(0).color, made.red);
    EXPECT_TRUE(manager.isMaterialInUse(made.fabric));
    EXPECT_FALSE(manager.isMaterialInUse(made.frame));
    EXPECT_FALSE(manager.isMaterialInUse(nyx::MaterialId(99)));

    zsg::IMaterialEdit* const edit = manager.createMaterialEdit(made.fabric);
    rebind(edit, {{{2, "seam"}, made.blue}});
    edit->beginEdit();
    edit->bindColor({2, "seam"}, made.green);
    ASSERT_EQ(renderer.loadSceneText(nyx::embedded::Renderer().saveSceneText()), "");
    edit->endEdit();
    EXPECT_EQ(stack.count(), 1);
    EXPECT_TRUE(edit->colorPlaces(made.blue).empty());
    EXPECT_FALSE(stack.undo()) << "there is nothing left to give the colour back to";
}
