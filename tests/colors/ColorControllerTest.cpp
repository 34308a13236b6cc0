#include "colors/ControllerScene.h"
#include "support/MarkingTranslator.h"

#include <QLoggingCategory>

#include <memory>
#include <utility>

using namespace zsg;
using nyx::ColorId;

namespace {

using ColorControllerTest = ControllerScene;

auto const mergeNot = AllowForwardUndoMerge::No;

/// Writes down which of its own operations it calls.
struct Derived final : ColorController {
    using ColorController::ColorController;
    void addSubColors(ColorId, nyx::Span<ColorId>, int, ColorId) const override { calls += 'a'; }
    void setActiveSubColor(ColorId, ColorId) const override { calls += 's'; }
    void removeMultiColors(nyx::ColorwayId, nyx::Span<ColorId>) const override { calls += 'r'; }
    unsigned activeReferenceCount(ColorId id) const override {
        colorDB()->clone(id); // so that lists of colours are read again
        static_cast<void>(colorDB()->multiColors());
        return calls += 'c', 0;
    }
    mutable std::string calls;
};

} // namespace

TEST_F(ColorControllerTest, EveryColorEditIsOneStepThatUndoTakesBack) { check(colorEdits()); }

TEST_F(ColorControllerTest, WhatDoesNotQualifyPushesAndChangesNothing) {
    ColorId const trim = multiColor("Trim", ids(red, noColor));
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
    EXPECT_EQ(edit.addOrSwitchSubColor(trim, noColor, false), ColorId());
    edit.linkColor(red, ColorId());
    EXPECT_FALSE(edit.toggleMultiColor({}).isValid() || edit.toggleMultiColor(noColor).isValid());
    edit.setDisplayName(noColorway, "x");
    edit.addColors(noColorway, coverRed, 0, true);
    edit.applyColorway(noColorway);
    EXPECT_FALSE(edit.createColorway("", coverRed).isValid());
    EXPECT_EQ(history() + since(before), "");
    EXPECT_EQ(edit.addOrSwitchSubColor(trim, noColor, true), noColor); // listed, if without record
    EXPECT_EQ(history(), "Switch Sub Color (Trim)");
}

TEST_F(ColorControllerTest, AListenerCannotPushAndLeavesNothingBehind) {
    QLoggingCategory::setFilterRules("zcore.undo=false");
    std::string const before = renderer.dump();
    nyx::ColorwayId made;
    std::unique_ptr<ScopedMacro> refused;
    reaction = [&](Event const&) {
        auto const once = std::exchange(reaction, nullptr);
        refused = edit.getScopedMacro("Refused");
        edit.setColor(green, ZColor(1, 1, 1), mergeNot);
        edit.setDisplayName(winter, "Ice");
        EXPECT_FALSE(edit.removeSubColors(cover, ids(red)));
        edit.linkColor(red, blue);
        made = edit.createColorway("Dune", coverRed);
    };
    edit.setDisplayName(blue, "Sky");
    db->pushColorway(made);
    EXPECT_EQ(history() + "; " + since(before),
              "Set Color name (Sky); 3 'Sky' 0 0 1 1; colorway 3 ''");
    EXPECT_EQ(db->getColorParameters(green)->color().r, 0);
    EXPECT_EQ(db->colorwayName(winter), "Winter");
    EXPECT_EQ(stack.macroDepth(), 0);
    auto const own = edit.getScopedMacro("Own");
    refused.reset();
    EXPECT_EQ(stack.macroDepth(), 1) << "what did not begin ends nobody else's";
    QLoggingCategory::setFilterRules({});
}

TEST_F(ColorControllerTest, WhatCannotBeMadeOrNamedPushesNothingButANameThatWasNeeded) {
    ColorId const unnamed = renderer.colors().add("", {1, 1, 1, 1});
    std::string const before = renderer.dump();
    renderer.faults().noUniqueNames = true;
    EXPECT_THROW(edit.toggleMultiColor(unnamed), std::bad_optional_access);
    EXPECT_EQ(stack.macroDepth(), 0);
    renderer.faults().noUniqueNames = false;
    int& failures = renderer.faults().failCreations = 6;
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
              "+Enable Multi Color (Multi-Color): 5 'Multi-Color' 1 1 1 1");
    failures = 1;
    edit.addSubKColors(cover, std::vector<ZColor>(2));
    EXPECT_EQ(db->getColorParameters(cover)->subColors().size(), 3u);
    renderer.faults().noUniqueNames = true;
    edit.setDisplayName(cover, ""); // disabling asks for no name
    EXPECT_EQ(edit.toggleMultiColor(cover), red);
    EXPECT_EQ(stack.text(stack.index() - 1), "Disable Multi Color ()");
}

TEST_F(ColorControllerTest, WithoutStackAndMaterialsEditsAreMadeOnce) {
    std::string const before = renderer.dump();
    ColorController bare(db.get(), nullptr, nullptr);
    auto const macro = bare.getScopedMacro("Nothing");
    bare.setFlags(red, 8, true);
    EXPECT_EQ(bare.toggleMultiColor(cover), red);
    EXPECT_EQ(since(before), "1 'Red' 1 0 0 1 flags 8; "
                             "colorway 1 'Summer' flags 2; colorway 2 'Winter'");
    EXPECT_TRUE(edit.anyMultiColorInUse());
    EXPECT_EQ(edit.activeReferenceCount(red), 1u);  // of one material in two ways
    EXPECT_EQ(edit.activeReferenceCount(blue), 0u); // no object has the material
    EXPECT_FALSE(bare.anyMultiColorInUse());
}

TEST_F(ColorControllerTest, ItsOwnOperationsGoThroughTheOverriddenOnes) {
    Derived derived(db.get(), &materials, &stack);
    derived.addOrSwitchSubColor(cover, blue, true);
    derived.addOrSwitchSubColor(cover, green, false);
    derived.addSubKColors(cover, std::vector<ZColor>(2));
    EXPECT_FALSE(derived.anyMultiColorInUse());
    EXPECT_TRUE(derived.checkForConflict(ZColorExt(ZColor(0, 0, 0, 1, "Red"))).empty());
    derived.removeSubColors(cover, ids(red, green));
    derived.toggleMultiColor(cover);
    EXPECT_EQ(derived.calls, "asasaccrrrr");
}

TEST_F(ColorControllerTest, TextsHaveTheContextsOfTheirCommands) {
    auto marking = std::make_unique<MarkingTranslator>();
    edit.setFlags(red, 8, true), edit.setDisplayName(red, "");
    edit.setDisplayName(winter, ""), edit.setDeleted(summer, true);
    edit.applyColorway(summer);
    edit.createColorway("Dune", coverRed);
    edit.linkColor(blue, green);
    std::string const texts = history();
    marking.reset();
    EXPECT_TRUE(history().starts_with("Modify Color (Red); ")); // in the language of the moment
    EXPECT_EQ(texts, "ZEditColorCommand:Modify Color (Red); "
                     "ZEditColorCommand:Clear Color name; "
                     "ZEditColorWayCommand:Clear Colorway name; "
                     "ZEditColorWayCommand:Delete Colorway (Summer); "
                     "ZActivateColorwayCommand:Switch Colorway (Summer); "
                     "ZCreateColorwayCommand:Create Colorway; "
                     "+QObject:Link Color (Blue) To (Green)");
}
