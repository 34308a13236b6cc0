#include "colors/ColorScene.h"

using namespace zsg;
using nyx::ColorId;
using nyx::ColorwayId;

namespace {

class ColorDBColorwaysTest : public ColorScene {
protected:
    ColorId const red = color("Red", 1);
    ColorId const blue = color("Blue");
    ColorId const shoe = multiColor("Shoe", {red, blue});
    ColorId const sole = multiColor("Sole", {red, blue});
    ColorwayId const summer = renderer.addColorway("Summer", {{shoe, red}, {sole, red}});
    ColorwayId const winter = renderer.addColorway("Winter", {{shoe, blue}, {sole, ColorId(77)}});
    ColorwayId const empty = renderer.addColorway("Empty", {});
};

} // namespace

TEST_F(ColorDBColorwaysTest, ApplyingMovesTheActiveFlagAndSwitchesWhatStillBelongs) {
    use(shoe);
    use(sole);
    EXPECT_EQ(trace([&] { db->applyColorway(summer); }), "?");
    EXPECT_EQ(trace([&] { db->applyColorway(winter); }), "?");
    EXPECT_EQ(trace([&] { renderer.processEvents(); }), "?");
    EXPECT_EQ(trace([&] { db->handleColorwayActivated(winter); }), "?");
}
