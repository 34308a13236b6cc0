#include "zcore/ZColorExt.h"

#include "zcore/ZColorExtAlpha.h"
#include "zcore/splitTrailingNumber.h"

#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using nyx::ColorId;
using Element = ZColorExt::ZColorWithId;

std::array<float, 4> floats(nyxColor_rgba const& c) { return {c.r, c.g, c.b, c.a}; }

constexpr std::array<float, 4> opaqueBlack{0, 0, 0, 1};

ZColorExt redAndBlue() {
    ZColorExt color;
    color.setId(ColorId(9));
    color.setColorName("Seat");
    color.setMultiColor(true);
    color.setColors({Element(ZColor(1, 0, 0, 0.5f, "Red"), ColorId(3)),
                     Element(ZColor(0, 0, 1, 1, "Blue"), ColorId(4)),
                     Element(ZColor(0, 0, 1, 1, "Blue again"), ColorId(4))});
    color.setActiveIndex(1);
    return color;
}

TEST(ZColorExtTest, GettersTakeAnyIndex) {
    ZColorExt moved = redAndBlue();
    ZColorExt const target = std::move(moved);
    EXPECT_EQ(target, redAndBlue());
    // NOLINTNEXTLINE(bugprone-use-after-move): what was moved from reads as a default value.
    for (ZColorExt const& empty : {ZColorExt(), moved}) {
        EXPECT_EQ(empty, ZColorExt());
        EXPECT_EQ(empty.nColors(), 0);
        EXPECT_EQ(floats(empty.rgba()), opaqueBlack);
        EXPECT_FALSE(empty.getId().isValid() || empty.getActiveSubColorId().isValid());
    }
    ZColorExt const color = redAndBlue();
    for (int const index : {-1, 3, INT_MAX, INT_MIN}) {
        EXPECT_EQ(floats(color.subRgba(index)), opaqueBlack);
        EXPECT_EQ(color.getColor(index), ZColor());
        EXPECT_EQ(color.getName(index), "");
        EXPECT_FALSE(color.getSubColorId(index).isValid());
        ZColorExt changed = color;
        changed.setSubColorId(index, ColorId(1));
        EXPECT_EQ(changed, color);
        changed.setActiveIndex(index);
        changed.setColor(ZColor(1, 1, 1), ZColorExt::NameOp::Replace);
        EXPECT_EQ(floats(changed.rgba()), opaqueBlack);
        changed.setActiveIndex(1);
        EXPECT_EQ(changed, color);
    }
}

TEST(ZColorExtTest, ReadsAsItsActiveElement) {
    ZColorExt color = redAndBlue();
    EXPECT_EQ(floats(color.rgba()), (std::array<float, 4>{0, 0, 1, 1}));
    EXPECT_EQ(color.getActive().name(), "Blue");
    EXPECT_EQ(static_cast<ZColor>(color), color.getColor(1));
    EXPECT_EQ(color.getActiveSubColorId(), ColorId(4));
    EXPECT_EQ(color.getIndexOfSubColor(ColorId(4)), 1) << "the first of that id";
    EXPECT_EQ(color.getIndexOfSubColor(ColorId(5)), -1);
    EXPECT_TRUE(color.hasSubColor(ColorId(3)));
    color.setMultiColor(false);
    EXPECT_FALSE(color.hasSubColor(ColorId(3))) << "a plain colour has no sub-colours";

    // The elements given may be the value's own, and so may the colour.
    color.setColors(nyx::Span<Element>(static_cast<Element const*>(&color.getColor(0)), 2));
    EXPECT_EQ(color.nColors(), 2);
    color.setColor(color.getColor(0), ZColorExt::NameOp::Keep);
    EXPECT_EQ(floats(color.subRgba(1)), floats(color.subRgba(0)));
    EXPECT_EQ(color.getName(1), "Blue");
}

TEST(ZColorExtTest, SetColorTakesTheNameOnRequest) {
    ZColor const grey(0.5f, 0.5f, 0.5f, 1, "Grey");
    ZColorExt plain;
    plain.setActiveIndex(2);
    plain.setColor(grey, ZColorExt::NameOp::Keep);
    EXPECT_EQ(plain, ZColorExt(0.5f, 0.5f, 0.5f)) << "the missing element is made";
    plain.setColor(grey, ZColorExt::NameOp::Replace);
    EXPECT_EQ(plain, ZColorExt(grey));
    EXPECT_EQ(plain.getColorName(), "Grey");

    ZColorExt multi = redAndBlue();
    multi.setColor(grey, ZColorExt::NameOp::Replace);
    EXPECT_EQ(multi.getName(1), "Grey");
    EXPECT_EQ(multi.getSubColorId(1), ColorId(4));
    EXPECT_EQ(multi.getColorName(), "Seat");
}

TEST(ZColorExtTest, CopiesShareUntilOneIsChanged) {
    ZColorExt const original = redAndBlue();
    ZColorExt copy = original;
    EXPECT_EQ(&copy.getColor(0), &original.getColor(0));
    EXPECT_NE(&original.detachedClone().getColor(0), &original.getColor(0));
    EXPECT_EQ(original.detachedClone(), original);
    copy.setSubColorId(0, ColorId(7));
    EXPECT_EQ(original.getSubColorId(0), ColorId(3));
    EXPECT_FALSE(copy == original);

    copy.copyDataFrom(original);
    copy.setRevision(5);
    EXPECT_EQ(copy, original) << "the revision does not count";
    EXPECT_EQ(original.revision(), 0U);
    copy.copyDataFrom(copy.detachedClone());
    EXPECT_EQ(copy.revision(), 5U);

    std::pair<void (*)(ZColorExt&), char const*> const changes[] = {
        {[](ZColorExt& c) { c.setId(ColorId(1)); }, "id"},
        {[](ZColorExt& c) { c.setColorName("Other"); }, "name"},
        {[](ZColorExt& c) { c.setMultiColor(false); }, "kind"},
        {[](ZColorExt& c) { c.setActiveIndex(0); }, "active index"},
        {[](ZColorExt& c) { c.setColor(ZColor(), ZColorExt::NameOp::Keep); }, "value"},
        {[](ZColorExt& c) { c.setColors({}); }, "elements"},
    };
    for (auto const& [change, what] : changes) {
        ZColorExt changed = original;
        change(changed);
        EXPECT_FALSE(changed == original) << what;
        EXPECT_EQ(original, redAndBlue()) << what;
    }
    static_assert(sizeof(ZColorExtAlpha) == sizeof(ZColorExt));
    static_assert(std::is_nothrow_move_constructible_v<ZColorExt>);
    EXPECT_EQ(ZColorExtAlpha(nyxColor{1, 0, 0}), ZColorExtAlpha(1, 0, 0, 1));
}

TEST(SplitTrailingNumberTest, SplitsOffOneBlankAndTheDigits) {
    struct Row {
        char const* whole;
        char const* text;
        int number;
    };
    Row const rows[] = {
        {"Layer 12", "Layer", 12},
        {"Layer12", "Layer", 12},
        {"Layer  007", "Layer ", 7},
        {"Layer", "Layer", 0},
        {"Layer ", "Layer ", 0},
        {"Layer 1 ", "Layer 1 ", 0},
        {"Layer -3", "Layer -", 3},
        {"42", "", 42},
        {" 42", "", 42},
        {"", "", 0},
        {"Layer 2147483647", "Layer", 2147483647},
        {"Layer 2147483648", "Layer 2147483648", 0},
        {"Layer \u0663", "Layer \u0663", 0}, // a digit, but not an ASCII one
    };
    for (Row const& row : rows) {
        EXPECT_EQ(splitTrailingNumber(QString::fromUtf8(row.whole)),
                  std::pair(QString::fromUtf8(row.text), row.number))
            << row.whole;
    }
}

} // namespace
