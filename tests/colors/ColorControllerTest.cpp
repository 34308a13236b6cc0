#include "colors/ControllerScene.h"

#include <QLoggingCategory>

using namespace zsg;
using nyx::ColorId;

namespace {

class ColorControllerTest : public ControllerScene {};

auto const mergeNot = AllowForwardUndoMerge::No;

} // namespace

TEST_F(ColorControllerTest, EveryColorEditIsOneStepThatUndoTakesBack) {
    check({
        {[&] { edit.setDisplayName(red, "Ruby"); }, "177 Set Color name (Ruby)",
         "color 1 'Ruby' 1 0 0 1"},
        {[&] { edit.setDisplayName(cover, ""); }, "177 Clear Color name", ""},
        {[&] { edit.setColor(red, ZColor(0.5f, 0, 0, 0.25f), mergeNot); }, "177 Set Color", ""},
        {[&] { edit.setColor(red, ZColor(1, 0, 0, 1, "%1 %2"), mergeNot); }, "177 Set Color", ""},
        {[&] { edit.setColor(cover, ZColor(1, 1, 1), mergeNot); }, "177 Set Color", ""},
        {[&] { edit.setFlags(red, 24, true); }, "177 Modify Color (Red)", ""},
        {[&] { edit.setActiveSubColor(cover, green); }, "177 Switch Sub Color (Cover)", ""},
        {[&] { edit.setActiveSubColor(cover, red); }, "177 Switch Sub Color (Cover)", ""},
        {[&] {
             edit.addSubColors(cover, {blue, red}, 0, blue);
         },
         "177 Add Sub Color (Cover)", ""},
        {[&] {
             edit.addSubColors(cover, {green, red}, 0, ColorId());
         },
         "177 Add Sub Color (Cover)", ""},
        {[&] { edit.setSubColors(cover, {blue}); }, "177 Add Sub Color (Cover)", ""},
        {[&] {
             edit.moveSubColors(cover, {red, blue}, -1, green);
         },
         "177 Move Sub Color (Cover)", ""},
        {[&] {
             edit.moveSubColors(cover, {green, red}, 0, blue);
         },
         "177 Move Sub Color (Cover)", ""},
        {[&] { edit.changeSubColor(cover, red, blue); }, "177 Set Color", ""},
        {[&] { edit.changeSubColor(cover, blue, noColor); }, "177 Set Color", ""},
        {[&] { edit.removeSubColors(cover, {blue}); }, "177 Remove Sub Color (Cover)", ""},
        {[&] {
             edit.removeSubColors(cover, {red, blue});
         },
         "1 Remove Sub Color (Cover)", ""},
        {[&] {
             edit.removeSubColors(cover, {green, red});
         },
         "1 Remove Sub Color (Cover)", ""},
        {[&] { edit.addOrSwitchSubColor(cover, green, true); }, "177 Switch Sub Color (Cover)", ""},
        {[&] { edit.addOrSwitchSubColor(cover, blue, true); },
         "177 Add Sub Color (Cover); 177 Switch Sub Color (Cover)", ""},
        {[&] { edit.linkColor(red, cover); }, "1 Link Color (Red) To (Cover)", ""},
        {[&] { edit.toggleMultiColor(cover); }, "1 Disable Multi Color (Cover)", ""},
    });
}

TEST_F(ColorControllerTest, RecordsThatAnEditMakesStayWhenItIsUndone) {
    check({
        {[&] { edit.addSubColor(cover, ZColor(0, 1, 1, 1, "Red"), 1); },
         "177 Add Sub Color (Cover)", ""},
        {[&] {
             edit.addSubKColors(cover, std::vector<ZColor>{{1, 1, 0}, {1, 0, 1, 1, "Pink"}});
         },
         "177 Add Sub Color (Cover)", ""},
        {[&] { edit.addOrSwitchSubColor(cover, cover, false); },
         "177 Add Sub Color (Cover); 177 Switch Sub Color (Cover)", ""},
        {[&] { edit.unlinkSubColor(cover, 1); }, "177 Unlink Sub Color (Cover)", ""},
        {[&] { edit.toggleMultiColor(blue); }, "1 Enable Multi Color (Blue)", ""},
        {[&] {
             edit.toggleMultiColor(renderer.addColor("", {1, 1, 1, 1}));
         },
         "1 Enable Multi Color (Multi-Color)", ""},
    });
}
