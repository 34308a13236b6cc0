#include "colors/ControllerScene.h"

using namespace zsg;
using nyx::ColorId;
using nyx::ColorwayId;

namespace {

class ColorControllerColorwaysTest : public ControllerScene {
protected:
    ColorId const trim = multiColor("Trim", {red, blue});
};

} // namespace

TEST_F(ColorControllerColorwaysTest, EveryColorwayEditIsOneStepThatUndoTakesBack) {
    check({
        {[&] { edit.setDisplayName(winter, "Ice"); }, "175 Set Colorway name (Ice)",
         "colorway 2 'Ice' pairs 4:2"},
        {[&] { edit.setDisplayName(winter, ""); }, "175 Clear Colorway name",
         "colorway 2 '' pairs 4:2"},
        {[&] {
             edit.setColors(summer, {{trim, blue}, {cover, green}});
         },
         "175 Edit Colorway (Summer)", "colorway 1 'Summer' flags 2 pairs 5:3 4:2"},
        {[&] {
             edit.setColors(summer, {{trim, blue}, {cover, green}, {trim, red}});
         },
         "175 Edit Colorway (Summer)", "colorway 1 'Summer' flags 2 pairs 4:2 5:3"},
        {[&] {
             edit.addColors(summer, {{cover, green}, {trim, red}, {trim, blue}}, 0, false);
         },
         "175 Edit Colorway (Summer)", "colorway 1 'Summer' flags 2 pairs 5:1 4:1"},
        {[&] {
             edit.addColors(summer, {{cover, green}, {trim, red}, {trim, blue}}, 5, true);
         },
         "175 Edit Colorway (Summer)", "colorway 1 'Summer' flags 2 pairs 4:2 5:3"},
        {[&] {
             edit.removeMultiColors(summer, {trim, cover});
         },
         "175 Edit Colorway (Summer)", "colorway 1 'Summer' flags 2"},
        {[&] { edit.setDeleted(winter, true); }, "175 Delete Colorway (Winter)",
         "colorway 2 'Winter' flags 1 pairs 4:2"},
        {[&] { edit.setDeleted(winter, false); }, "175 Delete Colorway (Winter)", ""},
        {[&] { edit.applyColorway(winter); }, "176 Switch Colorway (Winter)",
         "active colorway 2; Cover subs 1 2 active 2; Summer off; colorway 2 'Winter' flags 2 "
         "pairs 4:2"},
        {[&] {
             edit.createColorway("Dune %1", {{trim, red}});
         },
         "174 Create Colorway", "colorway 3 'Dune %1' pairs 5:1",
         "colorway 3 'Dune %1' flags 1 pairs 5:1"},
    });
}

TEST_F(ColorControllerColorwaysTest, EventsFollowTheCommits) {
    // Summer is active and shows red: its flag goes, and so does the settings' colorway.
    EXPECT_EQ(story([&] {
                  edit.removeSubColors(cover, std::vector<ColorId>{blue, red});
              }),
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
    EXPECT_EQ(story([&] { edit.toggleMultiColor(blue); }),
              "commit_color_params 6; > ColorCreated 6; > ColorUpdated 3; > ColorUpdated 6; "
              "material_bind_color 2 1 \"color\" 6");
}
