#include "zcore/ZColorExt.h"

#include "zcore/ZColorExtAlpha.h"
#include "zcore/splitTrailingNumber.h"

#include <climits>
#include <gtest/gtest.h>

#include <array>
#include <tuple>
#include <type_traits>
#include <utility>

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
    EXPECT_EQ(ZColorExt(std::move(moved)), redAndBlue());
    // NOLINTNEXTLINE(bugprone-use-after-move): what was moved from reads as a default value.
    EXPECT_EQ(moved, ZColorExt());
    EXPECT_EQ(floats(moved.rgba()), opaqueBlack);
    ZColorExt const color = redAndBlue();
    for (int const index : {-1, 3, INT_MAX, INT_MIN}) {
        EXPECT_EQ(color.getColor(index), ZColor(0, 0, 0, 1, ""));
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
    EXPECT_EQ(static_cast<ZColor>(color), ZColor(0, 0, 1, 1, "Blue"));
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
    EXPECT_EQ(color.getActive(), ZColor(1, 0, 0, 0.5f, "Blue"));

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
    EXPECT_EQ(multi.getActive(), grey);
    EXPECT_EQ(multi.getColorName(), "Seat");
}

TEST(ZColorExtTest, CopiesShareUntilOneIsChanged) {
    ZColorExt const original = redAndBlue();
    ZColorExt copy = original;
    EXPECT_EQ(&copy.getColor(0), &original.getColor(0));
    EXPECT_NE(&original.detachedClone().getColor(0), &original.getColor(0));
    copy.setRevision(5);
    EXPECT_EQ(copy, original) << "the revision does not count";
    copy.copyDataFrom(copy.detachedClone());
    EXPECT_EQ(copy.revision(), 5U);

    void (*const changes[])(ZColorExt&) = {
        [](ZColorExt& c) { c.setId(ColorId(1)); },
        [](ZColorExt& c) { c.setColorName("Other"); },
        [](ZColorExt& c) { c.setMultiColor(false); },
        [](ZColorExt& c) { c.setActiveIndex(0); },
        [](ZColorExt& c) { c.setColor(ZColor(), ZColorExt::NameOp::Keep); },
        [](ZColorExt& c) { c.setSubColorId(0, ColorId(7)); },
        [](ZColorExt& c) { c.setColors({}); },
    };
    for (auto const& change : changes) {
        ZColorExt changed = original;
        change(changed);
        EXPECT_FALSE(changed == original) << "change " << &change - changes;
        EXPECT_EQ(original, redAndBlue()) << "change " << &change - changes;
    }
    static_assert(sizeof(ZColorExtAlpha) == sizeof(ZColorExt));
    static_assert(std::is_nothrow_move_constructible_v<ZColorExt>);
    EXPECT_EQ(ZColorExtAlpha(nyxColor{1, 0, 0}), ZColorExtAlpha(1, 0, 0, 1));
}

TEST(SplitTrailingNumberTest, SplitsOffOneBlankAndTheDigits) {
    std::tuple<char const*, char const*, int> const rows[] = {
        {"Layer12", "Layer", 12},
        {"Layer  007", "Layer ", 7},
        {"Layer 1 ", "Layer 1 ", 0},
        {" 42", "", 42},
        {"", "", 0},
        {"Layer 2147483647", "Layer", 2147483647},
        {"Layer 2147483648", "Layer 2147483648", 0},
        {"Layer \u0663", "Layer \u0663", 0}, // a digit, but not an ASCII one
    };
    for (auto const& [whole, text, number] : rows) {
        EXPECT_EQ(splitTrailingNumber(QString::fromUtf8(whole)),
                  std::pair(QString::fromUtf8(text), number))
            << whole;
    }
}

} // namespace
