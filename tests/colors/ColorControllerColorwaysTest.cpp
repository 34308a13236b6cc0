#include "colors/ControllerScene.h"

using namespace zsg;

namespace {

class ColorControllerColorwaysTest : public ControllerScene {
protected:
    static std::vector<MultiColorPair> of(auto... pair) { return {pair...}; }

    ColorId const trim = multiColor("Trim", {red, blue});
    MultiColorPair const coverGreen{cover, green}, trimRed{trim, red}, trimBlue{trim, blue};
    ColorwayId const way = renderer.addColorway("Way", {{trim, red}, {cover, red}});
};

} // namespace

TEST_F(ColorControllerColorwaysTest, EveryColorwayEditIsOneStepThatUndoTakesBack) {
    check({
        {[&] { edit.setDisplayName(winter, "Ice"); }, "Set Colorway name (Ice)",
         "colorway 2 'Ice' pairs 4:2"},
        {[&] { edit.setColors(summer, of(trimBlue, coverGreen)); }, "Edit Colorway (Summer)",
         "colorway 1 'Summer' flags 2 pairs 5:3 4:2"},
        {[&] { edit.setColors(summer, of(trimBlue, coverGreen, trimRed)); },
         "Edit Colorway (Summer)", "colorway 1 'Summer' flags 2 pairs 4:2 5:3"},
        {[&] { edit.addColors(summer, of(coverGreen, trimRed, trimBlue), 0, false); },
         "+Edit Colorway (Summer)", "colorway 1 'Summer' flags 2 pairs 5:1 4:1"},
        {[&] { edit.addColors(summer, of(coverGreen, trimRed, trimBlue), 5, true); },
         "+Edit Colorway (Summer)", "colorway 1 'Summer' flags 2 pairs 4:2 5:3"},
        {[&] { edit.removeMultiColors(summer, ids(trim, cover)); }, "Edit Colorway (Summer)",
         "colorway 1 'Summer' flags 2"},
        {[&] { edit.setDeleted(winter, true); }, "Delete Colorway (Winter)",
         "colorway 2 'Winter' flags 1 pairs 4:2"},
        {[&] { edit.setDeleted(winter, false); }, "Delete Colorway (Winter)", ""},
        {[&] { edit.applyColorway(winter); }, "Switch Colorway (Winter)",
         "active colorway 2; Cover subs 1 2 active 2; Summer off; colorway 2 'Winter' flags 2 "
         "pairs 4:2"},
        {[&] { edit.createColorway("Dune %1", of(trimRed)); }, "Create Colorway",
         "colorway 4 'Dune %1' pairs 5:1", "colorway 4 'Dune %1' flags 1 pairs 5:1"},
        // An unused multi-colour that the first reading dropped stays away.
        {[&] { edit.setDisplayName(way, "x"); }, "Set Colorway name (x)",
         "colorway 3 'x' pairs 4:1", "colorway 3 'Way' pairs 4:1"},
        // Undoing a switch to the active colorway leaves none active.
        {[&] { edit.applyColorway(summer); }, "Switch Colorway (Summer)", "", "Summer off"},
    });
}

TEST_F(ColorControllerColorwaysTest, EventsFollowTheCommits) {
    // Summer is active and shows red: its flag goes, and so does the settings' colorway.
    db->getColorwayParameters(way)->setPairs({}, {});
    EXPECT_EQ(story([&] { edit.removeSubColors(cover, ids(blue, red)); }),
              "commit_color_params 4; > ColorUpdated 4; commit_colorway_params 1; "
              "commit_color_settings_params; > ColorWayUpdated 1; > ColorUpdated 1; "
              "commit_colorway_params 1; > ColorWayUpdated 1");
    EXPECT_EQ(story([&] { stack.undo(); }),
              "commit_colorway_params 1; > ColorWayUpdated 1; "
              "commit_color_params 4; > ColorUpdated 4; commit_colorway_params 1; "
              "commit_color_settings_params; > ColorWayUpdated 1; > ColorUpdated 1");
    EXPECT_EQ(story([&] { edit.toggleMultiColor(cover); }),
              "> ColorUpdated 1; > ColorUpdated 2; > ColorUpdated 4; "
              "material_bind_color 1 1 \"color\" 1; commit_colorway_params 1; "
              "> ColorWayUpdated 1; commit_colorway_params 2; > ColorWayUpdated 2");
    EXPECT_EQ(story([&] { stack.undo(); }),
              "commit_colorway_params 2; > ColorWayUpdated 2; commit_colorway_params 1; "
              "> ColorWayUpdated 1; > ColorUpdated 1; > ColorUpdated 2; > ColorUpdated 4");
    EXPECT_EQ(story([&] { edit.toggleMultiColor(blue); }),
              "commit_color_params 6; > ColorCreated 6; > ColorUpdated 3; > ColorUpdated 6; "
              "material_bind_color 2 1 \"color\" 6");
}
