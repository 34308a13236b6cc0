#include "colors/ControllerScene.h"

using namespace zsg;

using ColorControllerColorwaysTest = ControllerScene;

TEST_F(ColorControllerColorwaysTest, EveryColorwayEditIsOneStepThatUndoTakesBack) {
    check(colorwayEdits());
}

TEST_F(ColorControllerColorwaysTest, EventsFollowTheCommits) {
    // Summer is active and shows red: its flag goes, and so does the settings' colorway.
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
              "commit_color_params 5; > ColorCreated 5; > ColorUpdated 3; > ColorUpdated 5; "
              "material_bind_color 2 1 \"color\" 5");
}
