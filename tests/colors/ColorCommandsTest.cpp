#include "colors/ColorCommands.h"

#include "colors/ControllerScene.h"

using namespace zsg;

namespace {

class ColorCommandsTest : public ControllerScene {
protected:
    std::unique_ptr<ZEditColorCommand> colorEdit(int kind, ColorId id, int mergeMode = 0) {
        ZColorExtEdit const* const state = db->getColorParameters(id);
        return std::make_unique<ZEditColorCommand>(kind, db.get(), state->copyFor(id),
                                                   state->copyFor(id), mergeMode);
    }
};

} // namespace

TEST_F(ColorCommandsTest, OnlySetColorMergesIntoAnOpenSetColor) {
    ZToggleMultiColorCommand toggle(db.get(), ids(red));
    EXPECT_FALSE(colorEdit(1, red)->mergeWith(&toggle)); // of the same command id
    EXPECT_FALSE(toggle.mergeWith(colorEdit(1, red).get()));
    // Kind and merge mode of the first and of the later edit; then one of kind 1 follows.
    struct {
        int kind, mode, laterKind, laterMode;
        bool merges, mergesOn;
    } const rows[] = {
        {1, 0, 1, 1, true, false},  {1, 1, 1, 0, false, false}, {1, 0, 3, 0, false, true},
        {0, 0, 0, 0, false, false}, {3, 0, 1, 0, false, false}, {1, 0, 1, -7, true, false},
    };
    for (auto const& row : rows) {
        auto const command = colorEdit(row.kind, red, row.mode);
        EXPECT_EQ(command->mergeWith(colorEdit(row.laterKind, red, row.laterMode).get()),
                  row.merges);
        EXPECT_EQ(command->mergeWith(colorEdit(1, red).get()), row.mergesOn);
    }
}

TEST_F(ColorCommandsTest, MergingAcrossColorsLosesWhatLiesBetween) {
    std::string const before = renderer.dump();
    edit.setColor(red, ZColor(0.5f, 0, 0), AllowForwardUndoMerge::Yes);
    edit.changeSubColor(cover, red, blue);
    EXPECT_EQ(history(), "Set Color");
    std::string const after = renderer.dump();
    stack.undo(); // red only: neither the multi-colour nor the flag that it cost Summer
    EXPECT_EQ(since(before), "Cover subs 3 2 active 3; Summer off");
    stack.redo(); // the multi-colour only
    EXPECT_EQ(since(after), "1 'Red' 1 0 0 1");
}

TEST_F(ColorCommandsTest, ASwitchStopsAtAMissingMultiColorAndIsNotPushed) {
    ColorId const trim = multiColor("Trim", {red, blue});
    use(trim); // or the first reading of a colorway drops it
    auto const way = renderer.colorways().add("Way", {{cover, green}, {trim, blue}});
    ASSERT_EQ(db->getColorwayParameters(way)->multiColors().size(), 2u);
    renderer.colors().remove(trim);
    std::string const before = renderer.dump();
    edit.applyColorway(way);
    EXPECT_EQ(history(), "");
    EXPECT_EQ(since(before), "Cover subs 1 2 active 2");
}

TEST_F(ColorCommandsTest, EveryActiveColorwayLosesItsFlagAndGetsItBack) {
    db->getColorwayParameters(winter)->setActive(true);
    db->pushColorway(winter); // shows the green one in the multi-colour; Summer stays active
    auto const way = renderer.colorways().add("Way", {{cover, red}});
    std::string const before = renderer.dump();
    std::string const off = "Summer off; colorway 2 'Winter' pairs 4:2";
    edit.applyColorway(way);
    EXPECT_EQ(since(before), "active colorway 3; " + off + "; colorway 3 'Way' flags 2 pairs 4:1");
    stack.undo();
    EXPECT_EQ(since(before), "");
    edit.addSubColors(cover, ids(blue), 0, blue);
    EXPECT_EQ(since(before), "Cover subs 3 1 2 active 3; " + off);
    stack.undo();
    EXPECT_EQ(since(before), "");
}

TEST_F(ColorCommandsTest, ListsOfAColorEditAreFollowedBothWays) {
    auto const command = colorEdit(6, cover);
    command->setUndeleteOnRedo({winter, noColorway});
    command->setSyncColors(ids(blue, red));
    std::string const before = renderer.dump();
    std::string const told = "commit_color_params 4; > ColorUpdated 4; commit_colorway_params 2; "
                             "> ColorWayUpdated 2; > ColorUpdated 3; > ColorUpdated 1";
    EXPECT_EQ(story([&] { EXPECT_TRUE(command->undo()); }), told);
    EXPECT_EQ(since(before), "colorway 2 'Winter' flags 1 pairs 4:2");
    EXPECT_EQ(story([&] { EXPECT_TRUE(command->redo()); }), told);
    EXPECT_EQ(since(before), "");
}

TEST_F(ColorCommandsTest, WhenTheDatabaseIsGoneTheyFailAndWarnOnce) {
    edit.setDisplayName(red, "Ruby"), edit.setDisplayName(winter, "Ice");
    edit.applyColorway(winter), edit.createColorway("Dune", coverRed), edit.toggleMultiColor(blue);
    std::string const before = renderer.dump();
    db.reset();
    testing::internal::CaptureStderr();
    EXPECT_FALSE(stack.goTo(0));
    EXPECT_FALSE(stack.goTo(stack.count()));
    std::string const warning = testing::internal::GetCapturedStderr();
    EXPECT_EQ(std::ranges::count(warning, '\n'), 1) << warning;
    EXPECT_EQ(since(before), "");
}

TEST_F(ColorCommandsTest, WithoutTheirRecords) {
    ZCreateColorwayCommand create("Made", db.get(), noColorway);
    EXPECT_FALSE(create.redo() || create.undo());
    EXPECT_EQ(create.text(), "Made");
    ZActivateColorwayCommand activate(db.get(), noColorway);
    EXPECT_TRUE(activate.redo() && activate.undo());
    EXPECT_EQ(activate.text() + colorEdit(8, red)->text() + colorEdit(-1, red)->text(), "");
}
