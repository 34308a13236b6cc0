#include "colors/ControllerScene.h"

using namespace zsg;
using nyx::ColorId;

std::vector<UndoRoundTrip::Edit> ControllerScene::colorEdits() {
    auto const mergeNot = AllowForwardUndoMerge::No;
    ColorId const unnamed = renderer.colors().add("", {1, 1, 1, 1});
    std::vector<ZColor> const colors{{1, 1, 0}, {1, 0, 1, 1, "Pink"}};
    return {
        // First, as it must read the colorways while they still have what it is to remove.
        {[=, this] { edit.toggleMultiColor(cover); }, "+Disable Multi Color (Cover)",
         "colorway 1 'Summer' flags 2; colorway 2 'Winter'; material 1 'Fabric' places "
         "1.'color'->1 2.'seam'->1"},
        {[=, this] { edit.setDisplayName(red, "Ruby"); }, "Set Color name (Ruby)",
         "1 'Ruby' 1 0 0 1"},
        {[=, this] {
             edit.setColor(red, ZColor(1, 1, 1), AllowForwardUndoMerge::Yes);
             edit.setColor(red, ZColor(0.5f, 0, 0, 0.25f), mergeNot);
         },
         "Set Color", "1 'Red' 0.5 0 0 0.25"},
        {[=, this] { edit.setColor(red, ZColor(1, 0, 0, 1, "%1 %2"), mergeNot); }, "Set Color",
         "1 '%1 %2' 1 0 0 1"},
        {[=, this] { edit.setColor(cover, ZColor(1, 1, 1), mergeNot); }, "Set Color",
         "4 'Cover' 1 1 1 1 flags 1 subs 1 2 active 1"},
        {[=, this] { edit.setFlags(red, 24, true); }, "Modify Color (Red)",
         "1 'Red' 1 0 0 1 flags 24"},
        {[=, this] { edit.setFlags(red, 8, true), edit.setFlags(red, 24, false); },
         "Modify Color (Red); Modify Color (Red)", ""},
        {[=, this] {
             auto const macro = edit.getScopedMacro("Both %1");
             edit.setFlags(red, 8, true);
             edit.setDisplayName(blue, "Sky");
         },
         "+Both %1", "1 'Red' 1 0 0 1 flags 8; 3 'Sky' 0 0 1 1"},
        {[=, this] { edit.setActiveSubColor(cover, green); }, "Switch Sub Color (Cover)",
         "Cover subs 1 2 active 2; Summer off"},
        {[=, this] { edit.addSubColors(cover, ids(blue, red), 0, blue); }, "Add Sub Color (Cover)",
         "Cover subs 3 1 2 active 3; Summer off"},
        {[=, this] { edit.setSubColors(cover, ids(blue)); }, "Add Sub Color (Cover)",
         "Cover subs 3 active 1"},
        {[=, this] { edit.moveSubColors(cover, ids(red, blue), -1, green); },
         "Move Sub Color (Cover)", "Cover subs 2 1 active 2; Summer off"},
        {[=, this] { edit.moveSubColors(cover, ids(green, red), 0, blue); },
         "Move Sub Color (Cover)", "Cover subs 2 1 active 1"},
        {[=, this] { edit.changeSubColor(cover, red, blue); }, "Set Color",
         "Cover subs 3 2 active 3; Summer off"},
        {[=, this] { EXPECT_TRUE(edit.removeSubColors(cover, ids(blue))); },
         "Remove Sub Color (Cover)", ""},
        {[=, this] { edit.removeSubColors(cover, ids(red, blue)); }, "+Remove Sub Color (Cover)",
         "Cover subs 2 active 2; colorway 1 'Summer' pairs 4:2"},
        {[=, this] { edit.removeSubColors(cover, ids(green, red)); }, "+Remove Sub Color (Cover)",
         "Cover; colorway 1 'Summer'; colorway 2 'Winter'"},
        {[=, this] { edit.addOrSwitchSubColor(cover, green, true); }, "Switch Sub Color (Cover)",
         "Cover subs 1 2 active 2; Summer off"},
        {[=, this] { edit.addOrSwitchSubColor(cover, blue, true); },
         "Add Sub Color (Cover); Switch Sub Color (Cover)",
         "Cover subs 1 2 3 active 3; Summer off"},
        {[=, this] { edit.linkColor(red, cover); }, "+Link Color (Red) To (Cover)",
         "material 1 'Fabric' places 1.'color'->4 2.'seam'->4"},
        // Records that an edit makes stay.
        {[=, this] { edit.addSubColor(cover, ZColor(0, 1, 1, 1, "Red"), 1); },
         "Add Sub Color (Cover)", "Cover subs 1 6 2 active 1; 6 'Red 1' 0 1 1 1",
         "6 'Red 1' 0 1 1 1"},
        {[=, this] { edit.addSubKColors(cover, colors); }, "Add Sub Color (Cover)",
         "Cover subs 1 2 7 8 active 1; 7 '' 1 1 0 1; 8 'Pink' 1 0 1 1",
         "7 '' 1 1 0 1; 8 'Pink' 1 0 1 1"},
        {[=, this] { edit.addOrSwitchSubColor(cover, cover, false); },
         "Add Sub Color (Cover); Switch Sub Color (Cover)",
         "Cover subs 1 2 9 active 9; 9 'Red 2' 1 0 0 1; Summer off", "9 'Red 2' 1 0 0 1"},
        {[=, this] { edit.unlinkSubColor(cover, 1); }, "Unlink Sub Color (Cover)",
         "Cover subs 1 10 active 10; 10 'Green 1' 0 1 0 1; Summer off", "10 'Green 1' 0 1 0 1"},
        {[=, this] { edit.toggleMultiColor(blue); }, "+Enable Multi Color (Blue)",
         "11 'Blue 1' 0 0 1 1 flags 1 subs 3 active 3; material 2 'Frame' places "
         "1.'color'->11",
         "11 'Blue 1' 0 0 1 1 flags 1 subs 3 active 3"},
        {[=, this] { edit.toggleMultiColor(unnamed); }, "+Enable Multi Color (Multi-Color)",
         "5 'Multi-Color' 1 1 1 1; 12 'Multi-Color 1' 1 1 1 1 flags 1 subs 5 active 5",
         "12 'Multi-Color 1' 1 1 1 1 flags 1 subs 5 active 5"},
    };
}

std::vector<UndoRoundTrip::Edit> ControllerScene::colorwayEdits() {
    ColorId const trim = multiColor("Trim", {red, blue});
    ColorId const hollow = renderer.colors().addMulti("Hollow", {}, {});
    use(hollow);
    ColorwayId const way = renderer.colorways().add("Way", {{trim, red}, {cover, red}});
    MultiColorPair const coverGreen{cover, green}, trimRed{trim, red}, trimBlue{trim, blue};
    auto const of = [](auto... pair) { return std::vector<MultiColorPair>{pair...}; };
    return {
        {[=, this] { edit.toggleMultiColor(hollow); }, "+Disable Multi Color (Hollow)", ""},
        {[=, this] { edit.setDisplayName(winter, "Ice"); }, "Set Colorway name (Ice)",
         "colorway 2 'Ice' pairs 4:2"},
        {[=, this] { edit.setColors(summer, of(trimBlue, coverGreen)); }, "Edit Colorway (Summer)",
         "colorway 1 'Summer' flags 2 pairs 5:3 4:2"},
        {[=, this] { edit.setColors(summer, of(trimBlue, coverGreen, trimRed)); },
         "Edit Colorway (Summer)", "colorway 1 'Summer' flags 2 pairs 4:2 5:3"},
        {[=, this] { edit.addColors(summer, of(coverGreen, trimRed, trimBlue), 0, false); },
         "+Edit Colorway (Summer)", "colorway 1 'Summer' flags 2 pairs 5:1 4:1"},
        {[=, this] { edit.addColors(summer, of(coverGreen, trimRed, trimBlue), 5, true); },
         "+Edit Colorway (Summer)", "colorway 1 'Summer' flags 2 pairs 4:2 5:3"},
        {[=, this] { edit.removeMultiColors(summer, ids(trim, cover)); }, "Edit Colorway (Summer)",
         "colorway 1 'Summer' flags 2"},
        {[=, this] { edit.setDeleted(winter, true); }, "Delete Colorway (Winter)",
         "colorway 2 'Winter' flags 1 pairs 4:2"},
        {[=, this] { edit.setDeleted(winter, false); }, "Delete Colorway (Winter)", ""},
        {[=, this] { edit.applyColorway(winter); }, "Switch Colorway (Winter)",
         "active colorway 2; Cover subs 1 2 active 2; Summer off; colorway 2 'Winter' flags 2 "
         "pairs 4:2"},
        {[=, this] { edit.createColorway("Dune %1", of(trimRed)); }, "Create Colorway",
         "colorway 4 'Dune %1' pairs 5:1", "colorway 4 'Dune %1' flags 1 pairs 5:1"},
        // An unused multi-colour that the first reading dropped stays away.
        {[=, this] { edit.setDisplayName(way, "x"); }, "Set Colorway name (x)",
         "colorway 3 'x' pairs 4:1", "colorway 3 'Way' pairs 4:1"},
        // Undoing a switch to the active colorway leaves none active.
        {[=, this] { edit.applyColorway(summer); }, "Switch Colorway (Summer)", "", "Summer off"},
    };
}
