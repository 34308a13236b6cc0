#include "colors/ControllerScene.h"

#include <QLoggingCategory>

using namespace zsg;
using nyx::ColorId;

namespace {

class ColorControllerTest : public ControllerScene {};

auto const mergeNot = AllowForwardUndoMerge::No;

struct NothingInUse final : ISceneMaterialManager {
    IMaterialEdit* materialEdit(nyx::MaterialId) override { return nullptr; }
    IMaterialEdit* createMaterialEdit(nyx::MaterialId) override { return nullptr; }
    bool isMaterialInUse(nyx::MaterialId) const override { return false; }
};

} // namespace

TEST_F(ColorControllerTest, EveryColorEditIsOneStepThatUndoTakesBack) {
    check({
        // First, as it must read the colorways while they still have what it is to remove.
        {[&] { edit.toggleMultiColor(cover); }, "1 Disable Multi Color (Cover)",
         "colorway 1 'Summer' flags 2; colorway 2 'Winter'; material 1 'Fabric' places "
         "1.'color'->1 2.'seam'->1"},
        {[&] { edit.setDisplayName(red, "Ruby"); }, "177 Set Color name (Ruby)",
         "color 1 'Ruby' 1 0 0 1"},
        {[&] { edit.setDisplayName(cover, ""); }, "177 Clear Color name",
         "color 4 '' 0 0 0 1 flags 1 subs 1 2 active 1"},
        {[&] {
             edit.setColor(red, ZColor(1, 1, 1), AllowForwardUndoMerge::Yes);
             edit.setColor(red, ZColor(0.5f, 0, 0, 0.25f), mergeNot);
         },
         "177 Set Color", "color 1 'Red' 0.5 0 0 0.25"},
        {[&] { edit.setColor(red, ZColor(1, 0, 0, 1, "%1 %2"), mergeNot); }, "177 Set Color",
         "color 1 '%1 %2' 1 0 0 1"},
        {[&] { edit.setColor(cover, ZColor(1, 1, 1), mergeNot); }, "177 Set Color",
         "color 4 'Cover' 1 1 1 1 flags 1 subs 1 2 active 1"},
        {[&] { edit.setFlags(red, 24, true); }, "177 Modify Color (Red)",
         "color 1 'Red' 1 0 0 1 flags 24"},
        {[&] { edit.setActiveSubColor(cover, green); }, "177 Switch Sub Color (Cover)",
         "Cover subs 1 2 active 2; Summer off"},
        {[&] { edit.addSubColors(cover, ids(blue, red), 0, blue); }, "177 Add Sub Color (Cover)",
         "Cover subs 3 1 2 active 3; Summer off"},
        {[&] { edit.addSubColors(cover, ids(green, red), 0, ColorId()); },
         "177 Add Sub Color (Cover)", "Cover subs 2 1 1 2 active 1"},
        {[&] { edit.setSubColors(cover, ids(blue)); }, "177 Add Sub Color (Cover)",
         "Cover subs 3 active 1"},
        {[&] { edit.moveSubColors(cover, ids(red, blue), -1, green); },
         "177 Move Sub Color (Cover)", "Cover subs 2 1 active 2; Summer off"},
        {[&] { edit.moveSubColors(cover, ids(green, red), 0, blue); }, "177 Move Sub Color (Cover)",
         "Cover subs 2 1 active 1"},
        {[&] { edit.changeSubColor(cover, red, blue); }, "177 Set Color",
         "Cover subs 3 2 active 3; Summer off"},
        {[&] { edit.changeSubColor(cover, blue, noColor); }, "177 Set Color", ""},
        {[&] { edit.removeSubColors(cover, ids(blue)); }, "177 Remove Sub Color (Cover)", ""},
        {[&] { edit.removeSubColors(cover, ids(red, blue)); }, "1 Remove Sub Color (Cover)",
         "Cover subs 2 active 2; colorway 1 'Summer' pairs 4:2"},
        {[&] { edit.removeSubColors(cover, ids(green, red)); }, "1 Remove Sub Color (Cover)",
         "Cover; colorway 1 'Summer'; colorway 2 'Winter'"},
        {[&] { edit.addOrSwitchSubColor(cover, green, true); }, "177 Switch Sub Color (Cover)",
         "Cover subs 1 2 active 2; Summer off"},
        {[&] { edit.addOrSwitchSubColor(cover, blue, true); },
         "177 Add Sub Color (Cover); 177 Switch Sub Color (Cover)",
         "Cover subs 1 2 3 active 3; Summer off"},
        {[&] { edit.linkColor(red, cover); }, "1 Link Color (Red) To (Cover)",
         "material 1 'Fabric' places 1.'color'->4 2.'seam'->4"},
    });
}

TEST_F(ColorControllerTest, RecordsThatAnEditMakesStayWhenItIsUndone) {
    ColorId const unnamed = renderer.addColor("", {1, 1, 1, 1});
    check({
        {[&] { edit.addSubColor(cover, ZColor(0, 1, 1, 1, "Red"), 1); },
         "177 Add Sub Color (Cover)", "Cover subs 1 6 2 active 1; color 6 'Red 1' 0 1 1 1",
         "color 6 'Red 1' 0 1 1 1"},
        {[&] {
             edit.addSubKColors(cover, std::vector<ZColor>{{1, 1, 0}, {1, 0, 1, 1, "Pink"}});
         },
         "177 Add Sub Color (Cover)",
         "Cover subs 1 2 7 8 active 1; color 7 '' 1 1 0 1; color 8 'Pink' 1 0 1 1",
         "color 7 '' 1 1 0 1; color 8 'Pink' 1 0 1 1"},
        {[&] { edit.addOrSwitchSubColor(cover, cover, false); },
         "177 Add Sub Color (Cover); 177 Switch Sub Color (Cover)",
         "Cover subs 1 2 9 active 9; color 9 'Red 2' 1 0 0 1; Summer off",
         "color 9 'Red 2' 1 0 0 1"},
        {[&] { edit.unlinkSubColor(cover, 1); }, "177 Unlink Sub Color (Cover)",
         "Cover subs 1 10 active 10; color 10 'Green 1' 0 1 0 1; Summer off",
         "color 10 'Green 1' 0 1 0 1"},
        {[&] { edit.toggleMultiColor(blue); }, "1 Enable Multi Color (Blue)",
         "color 11 'Blue 1' 0 0 1 1 flags 1 subs 3 active 3; material 2 'Frame' places "
         "1.'color'->11",
         "color 11 'Blue 1' 0 0 1 1 flags 1 subs 3 active 3"},
        {[&] { edit.toggleMultiColor(unnamed); }, "1 Enable Multi Color (Multi-Color)",
         "color 5 'Multi-Color' 1 1 1 1; color 12 'Multi-Color 1' 1 1 1 1 flags 1 subs 5 active 5",
         "color 12 'Multi-Color 1' 1 1 1 1 flags 1 subs 5 active 5"},
    });
}

TEST_F(ColorControllerTest, WhatDoesNotQualifyPushesAndChangesNothing) {
    std::string const before = renderer.dump();
    edit.setColor(noColor, ZColor(1, 1, 1), mergeNot);
    edit.setFlags(cover, 8, true);
    edit.setActiveSubColor(red, green);
    edit.setSubColors(red, ids(green));
    edit.changeSubColor(cover, red, red);
    edit.changeSubColor(cover, red, green);
    EXPECT_FALSE(edit.removeSubColors(red, ids(green)));
    edit.unlinkSubColor(cover, 2);
    EXPECT_EQ(edit.addSubColor(red, ZColor(), 0), ColorId());
    edit.addSubKColors(red, std::vector<ZColor>(2));
    edit.addSubKColors(cover, {});
    EXPECT_EQ(edit.addOrSwitchSubColor(red, green, true), ColorId());
    EXPECT_EQ(edit.addOrSwitchSubColor(cover, noColor, false), ColorId());
    edit.linkColor(red, ColorId());
    EXPECT_EQ(edit.toggleMultiColor(ColorId()), ColorId());
    EXPECT_EQ(edit.toggleMultiColor(noColor), ColorId());
    edit.setDisplayName(noColorway, "x");
    edit.addColors(noColorway, coverRed, 0, true);
    edit.applyColorway(noColorway);
    EXPECT_FALSE(edit.createColorway("", coverRed).isValid());
    EXPECT_EQ(history() + since(before), "");
}

TEST_F(ColorControllerTest, AListenerCannotPushAndLeavesNothingBehind) {
    QLoggingCategory::setFilterRules("zcore.undo=false");
    std::string const before = renderer.dump();
    reaction = [&](Event const&) {
        edit.setColor(green, ZColor(1, 1, 1), mergeNot);
        edit.setDisplayName(winter, "Ice");
        EXPECT_FALSE(edit.removeSubColors(cover, ids(red)));
        edit.linkColor(red, blue);
    };
    edit.setDisplayName(blue, "Sky");
    EXPECT_EQ(history() + "; " + since(before), "177 Set Color name (Sky); color 3 'Sky' 0 0 1 1");
    EXPECT_EQ(db->getColorParameters(green)->color().r, 0);
    EXPECT_EQ(db->colorwayName(winter), "Winter");
    EXPECT_EQ(stack.macroDepth(), 0);
    QLoggingCategory::setFilterRules({});
}

TEST_F(ColorControllerTest, AnUnnamedColorWithoutANameThrowsBeforeTheMacroOpens) {
    ColorId const unnamed = renderer.addColor("", {1, 1, 1, 1});
    std::string const before = renderer.dump();
    renderer.faults().noUniqueNames = true;
    EXPECT_THROW(edit.toggleMultiColor(unnamed), std::bad_optional_access);
    EXPECT_EQ(stack.macroDepth(), 0);
    EXPECT_EQ(history() + since(before), "");
    edit.setDisplayName(cover, ""); // disabling asks for no name
    EXPECT_EQ(edit.toggleMultiColor(cover), red);
    EXPECT_EQ(stack.text(1), "Disable Multi Color ()");
}

TEST_F(ColorControllerTest, FailedCreationsPushNothingButANameThatWasNeeded) {
    ColorId const unnamed = renderer.addColor("", {1, 1, 1, 1});
    std::string const before = renderer.dump();
    int& failures = renderer.faults().failCreations;
    failures = 6;
    EXPECT_EQ(edit.addSubColor(cover, ZColor(), 0), ColorId());
    EXPECT_EQ(edit.addOrSwitchSubColor(cover, blue, false), ColorId());
    edit.addSubKColors(cover, std::vector<ZColor>(1));
    edit.unlinkSubColor(cover, 0);
    EXPECT_EQ(edit.toggleMultiColor(blue), ColorId());
    EXPECT_FALSE(edit.createColorway("Dune", {}).isValid());
    EXPECT_EQ(history() + since(before), "");
    failures = 1;
    EXPECT_EQ(edit.toggleMultiColor(unnamed), ColorId());
    EXPECT_EQ(history() + ": " + since(before),
              "1 Enable Multi Color (Multi-Color): color 5 'Multi-Color' 1 1 1 1");
    failures = 1;
    edit.addSubKColors(cover, std::vector<ZColor>(2));
    EXPECT_EQ(db->getColorParameters(cover)->subColors().size(), 3u);
}

TEST_F(ColorControllerTest, WithoutStackAndMaterialsEditsAreMadeOnce) {
    std::string const before = renderer.dump();
    ColorController bare(db.get(), nullptr, nullptr);
    auto const macro = bare.getScopedMacro("Nothing");
    bare.setFlags(red, 8, true);
    EXPECT_EQ(bare.toggleMultiColor(cover), red);
    EXPECT_EQ(since(before), "color 1 'Red' 1 0 0 1 flags 8; "
                             "colorway 1 'Summer' flags 2; colorway 2 'Winter'");
    EXPECT_TRUE(edit.anyMultiColorInUse());
    EXPECT_EQ(edit.activeReferenceCount(red), 1u);  // of one material in two ways
    EXPECT_EQ(edit.activeReferenceCount(blue), 0u); // no object has the material
    NothingInUse unused;
    EXPECT_FALSE(bare.anyMultiColorInUse() ||
                 ColorController(db.get(), &unused, nullptr).anyMultiColorInUse());
    ColorController const copy = bare;
    EXPECT_EQ(copy.colorDB(), db.get());
}

TEST_F(ColorControllerTest, AColorEditCostsTheSameInEveryScene) {
    auto const changeRed = [&] {
        return trace([&] { edit.setColor(red, ZColor(1, 1, 1), AllowForwardUndoMerge::Yes); });
    };
    changeRed(); // reads the colour
    std::string const small = changeRed();
    std::vector<nyx::embedded::ColorwayPair> const pairs(1, {cover, red});
    for (int i = 0; i < 20'000; ++i) {
        color("Colour");
        renderer.addColorway("", pairs);
        edit.setFlags(blue, 8, i % 2 == 0);
    }
    changeRed();
    EXPECT_EQ(changeRed(), small);
}
