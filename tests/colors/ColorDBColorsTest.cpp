#include "colors/ColorScene.h"

using namespace zsg;
using nyx::ColorId;
using nyx::ColorwayId;

namespace {

class ColorDBColorsTest : public ColorScene {};

using Element = ZColorExt::ZColorWithId;

ZColorExt plainValue(std::string const& name, float red) {
    return ZColorExt(ZColor(red, 0, 0, 1, name));
}

} // namespace

TEST_F(ColorDBColorsTest, PushingANewMultiColorMakesItsRecordsAndTellsOfThem) {
    ColorId const red = color("Red", 1);
    ZColorExt value;
    value.setMultiColor(true);
    value.setColorName("Red");
    value.setColors({Element(ZColor(0.5f, 0, 0, 1, "Dark"), red),
                     Element(ZColor(0, 0, 1, 1, "Red"), ColorId())});
    value.setActiveIndex(1);
    ZColorExt const shared = value;
    EXPECT_EQ(trace([&] { db->pushColor(value); }), "?");
    EXPECT_FALSE(shared.getId().isValid()); // the caller's copies are not written to
    EXPECT_EQ(value.getColorName(), "Red 1");
    ZColorExt const read = db->colorFromId(value.getId());
    EXPECT_EQ(read, value);
    EXPECT_EQ(read.revision(), value.revision());
    EXPECT_EQ(trace([&] { db->pushColor(value); }), "?");
    EXPECT_EQ(trace([&] { db->pushColor(value); }), "?");

    value.setMultiColor(false);
    value.setActiveIndex(0);
    EXPECT_EQ(trace([&] { db->pushColor(value); }), "?");
    EXPECT_EQ(db->colorFromId(value.getId()).nColors(), 1);
    EXPECT_EQ(db->colorFromId(value.getId()).rgba().r, 0.5f);
}

TEST_F(ColorDBColorsTest, CopiesAreMadeUnderTheLockAndToldOfAfterIt) {
    ColorId const red = color("Red", 1);
    ColorId const blue = color("Blue");
    ColorId const multi = multiColor("Multi", {red, blue});
    db->getColorParameters(multi)->setColor({0.5f, 0, 0, 1}); // copies take what is not committed
    ColorId copy;
    EXPECT_EQ(trace([&] { copy = db->clone(multi); }), "?");
    EXPECT_EQ(db->getColorParameters(copy)->color().r, 0.5f);
    EXPECT_TRUE(db->getColorParameters(copy)->hasSubColor(blue));
    EXPECT_EQ(trace([&] { copy = db->multiColorFromColor(red); }), "?");
    EXPECT_TRUE(db->getColorParameters(copy)->hasSubColor(red));
    EXPECT_EQ(trace([&] { copy = db->cloneRecursively(multi); }), "?");
    ZColorExt const value = db->colorFromId(copy);
    ASSERT_EQ(value.nColors(), 2);
    EXPECT_EQ(value.getName(1), "Blue 1");
    EXPECT_EQ(value.getActiveSubColorId(), value.getSubColorId(0));
}
