#include "colors/ColorScene.h"

using namespace zsg;

namespace {

class ColorDBColorwaysTest : public ColorScene {
protected:
    ColorId const red = color("Red", 1);
    ColorId const blue = color("Blue");
    ColorId const shoe = multiColor("Shoe", {red, blue});
    ColorId const sole = multiColor("Sole", {red, blue});
    ColorwayId const summer = renderer.colorways().add("Summer", {{shoe, red}, {sole, red}});
    ColorwayId const winter =
        renderer.colorways().add("Winter", {{shoe, blue}, {sole, ColorId(77)}});
    ColorwayId const empty = renderer.colorways().add("Empty", {});
};

} // namespace

TEST_F(ColorDBColorwaysTest, ApplyingMovesTheActiveFlagAndSwitchesWhatStillBelongs) {
    use(shoe);
    use(sole);
    EXPECT_EQ(calls([&] { db->applyColorway(summer); }),
              "colorway_params 1, nyx_color_reference_count 3, "
              "nyx_color_reference_count 4, color_settings_params, "
              "commit_color_settings_params, nyx_get_colordb_revision, nyx_get_colorways, "
              "colorway_params 2, nyx_color_reference_count 3, "
              "nyx_color_reference_count 4, colorway_params 3, commit_colorway_params 1, "
              "> ColorWayUpdated 1, call_after_sync, color_params 3, color_params 4");
    EXPECT_EQ(calls([&] { db->applyColorway(winter); }),
              "commit_color_settings_params, nyx_get_colordb_revision, nyx_get_colorways, "
              "commit_colorway_params 1, > ColorWayUpdated 1, call_after_sync, "
              "commit_colorway_params 2, > ColorWayUpdated 2, call_after_sync, "
              "commit_color_params 3, > ColorUpdated 3, > ColorUpdated 1, > ColorUpdated 2");
    EXPECT_EQ(db->getColorParameters(shoe)->activeSub(), blue);
    EXPECT_EQ(db->getColorParameters(sole)->activeSub(), red);
    EXPECT_EQ(calls([&] { renderer.processEvents(); }),
              "> ColorwaySynced 1, > ColorwaySynced 1, > ColorwaySynced 2");
    for (ColorwayId const id : {empty, ColorwayId(), ColorwayId(77)}) {
        EXPECT_EQ(calls([&] { db->applyColorway(id); }).find("commit"), std::string::npos);
    }
    EXPECT_EQ(db->activeColorwayName(), "Winter");
}

TEST_F(ColorDBColorwaysTest, TheFirstReadingDropsUnusedMultiColorsUncommitted) {
    use(shoe);
    EXPECT_EQ(db->getColorwayParameters(summer)->multiColors().size(), 1u);
    EXPECT_TRUE(db->getColorwayParameters(summer)->isModified());
    EXPECT_EQ(ColorDB(&queue, renderer.api()).getColorwayParameters(summer)->activeSubOf(shoe),
              red);
    use(sole); // too late for the edit that was read, and for what is written next
    db->getColorwayParameters(summer)->setDisplayName("Spring");
    db->pushColorway(summer);
    EXPECT_EQ(ColorDB(&queue, renderer.api()).getColorwayParameters(summer)->activeSubOf(sole),
              ColorId());
}

TEST_F(ColorDBColorwaysTest, WithoutASceneNothingIsKnownToBeUnused) {
    renderer.faults().noScene = true;
    EXPECT_EQ(db->getColorwayParameters(summer)->multiColors().size(), 2u);
    EXPECT_FALSE(db->getColorwayParameters(summer)->isModified());
}

TEST_F(ColorDBColorwaysTest, PushingFollowsTheActiveFlagInTheSettings) {
    EXPECT_EQ(calls([&] { db->pushColorway(summer); }), ""); // no edit was asked for
    ZColorwayEdit* const edit = db->getColorwayParameters(summer);
    edit->setActive(true);
    db->pushColorway(summer);
    EXPECT_EQ(calls([&] { db->pushColorway(summer); }), "");
    db->getColorwayParameters(empty)->setDisplayName("Void");
    db->pushColorway(empty);
    EXPECT_EQ(db->activeColorwayName(), "Summer");
    edit->setActive(false);
    EXPECT_EQ(calls([&] { db->pushColorway(summer); }),
              "commit_colorway_params 1, commit_color_settings_params, "
              "> ColorWayUpdated 1, call_after_sync");
    EXPECT_EQ(db->activeColorwayName() + db->colorwayName(ColorwayId()), "");
    nyxParameter_edit* const block = api()->colorway_params(summer);
    ZColorwayEdit const uncopied(nullptr, block); // nobody to copy it
    db->setColorwayEdit(&uncopied);
    EXPECT_EQ(db->colorwayName(summer), "Summer");
    api()->release_colorway_params(block);
}

TEST_F(ColorDBColorwaysTest, ASwitchOfTheRendererRereadsTheColorwayAndItsMultiColors) {
    use(shoe);
    use(sole);
    EXPECT_EQ(calls([&] { db->handleColorwayActivated(winter); }), ""); // nothing was read yet
    db->getColorwayParameters(winter);
    db->getColorParameters(shoe)->setColor({0.5f, 0, 0, 1});
    EXPECT_FALSE(db->activeColorwayId().isValid());
    renderer.colorways().activate(winter);
    EXPECT_EQ(calls([&] { db->handleColorwayActivated(winter); }),
              "release_color_params 3, color_params 3, > ColorUpdated 3, color_params 4, "
              "> ColorUpdated 4, release_colorway_params 2, colorway_params 2, "
              "nyx_color_reference_count 3, nyx_color_reference_count 4, "
              "> ColorWayUpdated 2, call_after_sync");
    EXPECT_EQ(db->getColorParameters(shoe)->activeSub(), blue);
    EXPECT_TRUE(db->getColorwayParameters(winter)->isActive());
    EXPECT_FALSE(db->activeColorwayId().isValid()); // the settings stay as they were read

    // Reading it afresh drops what nothing uses, and that is committed.
    ColorwayId const late =
        renderer.colorways().add("Late", {{shoe, red}, {multiColor("Lone", {red}), red}});
    db->getColorwayParameters(late);
    EXPECT_NE(calls([&] { db->handleColorwayActivated(late); }).find("commit_colorway_params"),
              std::string::npos);
}

TEST_F(ColorDBColorwaysTest, SettingsThatAreMissingAreAskedForAgain) {
    renderer.faults().noSettings = true;
    use(shoe);
    db->applyColorway(summer);
    EXPECT_FALSE(db->activeColorwayId().isValid());
    EXPECT_TRUE(db->getColorwayParameters(summer)->isActive());
    renderer.faults().noSettings = false;
    EXPECT_NE(db->getColorSettingsParameters(), nullptr);
}

TEST_F(ColorDBColorwaysTest, NewColorwaysAreToldOfAtOnceAndWhenTheRendererHasThem) {
    ColorwayId const fresh = db->createColorway();
    ASSERT_EQ(fresh, ColorwayId(4));
    EXPECT_EQ(db->colorways().size(), 4u);
    db.reset(); // the callback is the queue's
    EXPECT_EQ(calls([&] { renderer.processEvents(); }), "> ColorwaySynced 4");

    auto other = std::make_unique<ZEventQueue>();
    db = std::make_unique<ColorDB>(other.get(), renderer.api());
    db->createColorway();
    db = std::make_unique<ColorDB>(&queue, renderer.api());
    other.reset();
    renderer.processEvents(); // nobody to tell
    renderer.faults().failCreations = 1;
    EXPECT_EQ(calls([&] { EXPECT_FALSE(db->createColorway().isValid()); }),
              "lock, begin_colorway, end_colorway, unlock");
}
