#include "colors/ControllerScene.h"

#include <gmock/gmock.h>

using namespace zsg;
using nyx::ColorId;
using nyx::ColorwayId;
using testing::AnyOf;
using testing::HasSubstr;

namespace {

using ColorDBTest = ColorScene;

/// Calls every operation with ids that nothing has; nothing may come of it.
void callAll(ColorDB& db, ColorId color, ColorwayId colorway) {
    auto const lock = db.createRtApiLock();
    EXPECT_FALSE(db.colorFromName(*lock, "Nobody").isValid() ||
                 db.multiColorFromName(*lock, "Nobody").isValid() ||
                 db.colorwayFromName(*lock, "Nobody").isValid());
    EXPECT_FALSE(db.getColorParameters(color) || db.getColorwayParameters(colorway));
    EXPECT_FALSE(db.clone(color).isValid() || db.cloneRecursively(color).isValid() ||
                 db.multiColorFromColor(color).isValid());
    db.pushColor(color);
    db.setActiveSubColor({color, color});
    EXPECT_EQ(db.colorFromId(color), ZColorExt());
    EXPECT_EQ(db.totalSceneReferenceCount(color), 0u);
    EXPECT_TRUE(db.getMaterialsUsingColor(color, 3, true).empty());
    EXPECT_EQ(db.colorwayName(colorway), "");
    db.checkForUnusedMultiColors(colorway);
    db.pushColorway(colorway);
    db.applyColorway(colorway);
    db.handleColorwayActivated(colorway);
    db.setColorEdit(nullptr);
    db.setColorwayEdit(nullptr);
    ZColorExt value;
    value.setId(color);
    if (color.isValid()) {
        db.pushColor(value);
    }
    EXPECT_EQ(value.getId(), color);
}

} // namespace

TEST_F(ColorDBTest, FindsNames) {
    ColorId const unused = color("Red");
    ColorId const used = color("Green");
    use(used);
    ColorId const multi = multiColor("Multi", {unused});
    nyx::ColorwayId const colorway = renderer.colorways().add("Way", {});
    EXPECT_EQ(db->colorName(used) + db->colorName(ColorId(99)), "Green");
    EXPECT_EQ(renderer.ledger().blocks, 0) << "no edit is kept for a name";
    db->getColorParameters(used)->setDisplayName("Red"); // two of that name
    EXPECT_EQ(db->colorName(used), "Red");
    db->pushColor(used);
    auto const lock = db->createRtApiLock();
    EXPECT_EQ(renderer.ledger().lockDepth, 1);
    EXPECT_EQ(db->colorFromName(*lock, "Red"), used);
    EXPECT_EQ(db->multiColorFromName(*lock, "Multi"), multi);
    EXPECT_EQ(db->colorwayFromName(*lock, "Way"), colorway);
    EXPECT_FALSE(db->colorFromName(*lock, "Multi").isValid() ||
                 db->colorFromName(*lock, "").isValid());
    auto const plain = nyxColor_extended::PlainColor;
    EXPECT_EQ(db->findUniqueColorName("Red", {}, plain), "Red 1");
    EXPECT_EQ(db->findUniqueColorName("Red", {unused, used}, plain), "Red");
    renderer.faults().noUniqueNames = true;
    EXPECT_EQ(db->findUniqueColorName("Red", {}, plain), std::nullopt);
    EXPECT_FALSE(db->anyMultiColorsInScene());
    use(multi);
    EXPECT_TRUE(db->anyMultiColorsInScene());
    EXPECT_EQ(db->getMaterialsUsingColor(unused, 2, true).size(), 1u);
    EXPECT_EQ(db->getMaterialsUsingColor(unused, 3, false).size(), 0u);
}

TEST_F(ColorDBTest, ListsAreReadAgainWhenTheRevisionHasMoved) {
    ColorId const red = color("Red");
    ColorId const nameless = color("");
    ColorId const multi = multiColor("Multi", {red});
    std::string const asks = "nyx_get_colordb_revision";
    EXPECT_EQ(calls([&] { EXPECT_EQ(list(db->colors()), ids(red, nameless)); }),
              asks + ", nyx_get_colors_named, nyx_get_colors 1");
    EXPECT_EQ(calls([&] { EXPECT_EQ(db->colors().size(), 2u); }), asks);
    EXPECT_EQ(calls([&] { EXPECT_EQ(list(db->multiColors()), ids(multi)); }),
              asks + ", nyx_get_colors 2");
    EXPECT_EQ(calls([&] { EXPECT_EQ(db->colorways().size(), 0u); }), asks + ", nyx_get_colorways");
    EXPECT_EQ(db->namedColors(), ids(red, multi));

    db->getColorParameters(red)->setColor({1, 1, 1, 1}); // a value alone moves no list
    db->pushColor(red);
    EXPECT_EQ(calls([&] { EXPECT_EQ(db->multiColors().size(), 1u); }), asks);
    db->getColorParameters(red)->setFlag(ColorFlags::MultiColor);
    db->pushColor(red);
    EXPECT_EQ(list(db->multiColors()), ids(red, multi));
    renderer.faults().noScene = true;
    EXPECT_TRUE(db->colors().empty() && db->multiColors().empty() && db->colorways().empty());
    renderer.faults().noScene = false;
    EXPECT_EQ(db->colors().size(), 1u);
}

TEST_F(ColorDBTest, BadIdsAndMissingPartsHaveQuietAnswers) {
    color("Red");
    std::string const before = renderer.dump();
    EXPECT_THAT(trace([&] {
                    for (bool const missing : {false, true}) {
                        renderer.faults().noScene = missing;
                        callAll(*db, ColorId(), ColorwayId());
                        callAll(*db, ColorId(99), ColorwayId(99));
                    }
                    EXPECT_EQ(db->createColor("New", nyxColor_extended::MultiColor), ColorId());
                    EXPECT_EQ(db->createColorway(), ColorwayId());
                }),
                testing::Not(AnyOf(HasSubstr("commit"), HasSubstr("begin"), HasSubstr(">"))));
    renderer.faults().noScene = false;
    EXPECT_EQ(renderer.dump(), before);

    ColorDB nowhere(&queue, nullptr);
    callAll(nowhere, ColorId(1), ColorwayId(1));
    EXPECT_EQ(nowhere.createColor("New", nyxColor_extended::PlainColor), ColorId());
    EXPECT_EQ(nowhere.createColorway(), ColorwayId());
    EXPECT_FALSE(nowhere.activeColorwayId().isValid());
    EXPECT_TRUE(nowhere.colors().empty() && nowhere.colorways().empty());

    ColorDB unheard(nullptr, renderer.api());
    ColorwayId const colorway = unheard.createColorway();
    ColorId const multi = unheard.cloneRecursively(unheard.multiColorFromColor(ColorId(1)));
    unheard.getColorwayParameters(colorway)->setPairs({multi}, {ColorId(1)});
    unheard.applyColorway(colorway);
    EXPECT_EQ(unheard.activeColorwayId(), colorway);
}

using ColorDBGrowth = ControllerScene;

// Renderer calls and events, whatever else the scene and the undo stack hold.
TEST_F(ColorDBGrowth, EditsCostTheSameInEveryScene) {
    float turn = 0;
    auto const cost = [&] {
        turn += 1;
        ZColorExt value(ZColor(1, 1, 1, 1, "Red"));
        std::string const text = trace([&] {
            edit.setColor(red, ZColor(turn, 0, 0), AllowForwardUndoMerge::Yes);
            db->getColorParameters(red)->setDisplayName("Red " + std::to_string(turn));
            db->pushColor(red);
            db->pushColor(value);
            db->clone(red);
            db->multiColorFromColor(red);
        });
        return std::ranges::count(text, '\n');
    };
    cost(); // reads what is read once
    auto const small = cost();
    for (int i = 0; i < 20'000; ++i) {
        color("Red " + std::to_string(i));
        renderer.colorways().add("", {{cover, red}});
        edit.setFlags(green, 8, i % 2 == 0);
    }
    cost();
    EXPECT_EQ(cost(), small);
}
