#include "zsg/values/WeavePattern.h"

#include "zsg/values/hash.h"

#include "nyxrender/WeavePattern.h"

#include <climits>
#include <gtest/gtest.h>

#include <iostream>
#include <sstream>
#include <string>
#include <thread>
#include <utility>
#include <vector>

using zsg::WeavePattern;
using enum WeavePattern::YarnType;
using enum WeavePattern::YarnKind;

namespace {

/// Rows of cells, parted by '/'.
std::string draft(WeavePattern const& pattern) {
    std::string text;
    for (int y = 0; y < pattern.numWeft(); ++y) {
        text += y == 0 ? "" : "/";
        for (int x = 0; x < pattern.numWarp(); ++x) {
            text += std::to_string(pattern.get(x, y));
        }
    }
    return text;
}

/// Width, tension and kind of warp and weft.
std::string yarns(WeavePattern const& p) {
    std::ostringstream text;
    for (auto const type : {Warp, Weft}) {
        text << p.width(type) << ' ' << p.tension(type) << ' ' << p.kind(type) << ' ';
    }
    return text.str();
}

WeavePattern patternOf(int numWarp, std::vector<int> const& cells) {
    return {numWarp, static_cast<int>(cells.size()) / numWarp, cells.data()};
}

WeavePattern fromRecord(std::vector<int> cells) {
    WeavePattern pattern;
    pattern.setFromNyxPattern({static_cast<int>(cells.size()), 1, cells.data()});
    return pattern;
}

} // namespace

TEST(WeavePattern, GeneratorsDrawTheirWeaves) {
    struct {
        WeavePattern pattern;
        char const* cells;
        char const* yarns;
    } const rows[] = {
        {WeavePattern(), "00/00", "0.4 1 1 0.9 1 1 "},
        {WeavePattern::makePlain(), "01/10", "0.7 0.5 1 0.7 0.5 1 "},
        {WeavePattern::makeTwill(4, 2), "1100/0110/0011/1001", "0.7 0.5 1 0.7 0.5 1 "},
        {WeavePattern::makeTwill(3, 7), "111/111/111", "0.7 0.5 1 0.7 0.5 1 "},
        {WeavePattern::makeTwill(2, -1), "00/00", "0.7 0.5 1 0.7 0.5 1 "},
        {WeavePattern::makeSatin(5, 2), "01111/11011/11110/10111/11101", "0.35 2 1 1 0.5 0 "},
        {WeavePattern::makeSatin(3, -1), "011/110/101", "0.35 2 1 1 0.5 0 "},
        {WeavePattern::makeBasket(2), "0011/0011/1100/1100", "0.7 0.5 1 0.7 0.5 1 "},
        {WeavePattern::makeHerringbone(),
         "110011001100/011001011001/001100110011/100110100110/"
         "110011001100/011001011001/001100110011/100110100110",
         "0.803 1 1 0.78 1 1 "},
        {WeavePattern::makeTwill(0, 3), "0", "0.7 0.5 1 0.7 0.5 1 "},
        {WeavePattern::makeSatin(-2, 1), "1", "0.35 2 1 1 0.5 0 "},
        {WeavePattern::makeBasket(1 << 30), "0", "0.7 0.5 1 0.7 0.5 1 "},
    };
    for (auto const& row : rows) {
        EXPECT_EQ(draft(row.pattern), row.cells);
        EXPECT_EQ(yarns(row.pattern), row.yarns);
    }
}

TEST(WeavePattern, CoordinatesWrap) {
    WeavePattern pattern = patternOf(4, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 9});
    EXPECT_EQ(pattern.get(-1, -1), Weft);
    EXPECT_EQ(pattern.get(7, -4), Weft);
    pattern.set(INT_MIN, INT_MAX, Weft); // columns 4 and rows 3: (0, 1)
    pattern.flip(-5, 5);
    EXPECT_EQ(draft(pattern), "0000/1000/0000");
    pattern.invert();
    EXPECT_EQ(draft(pattern), "1111/0111/1111");
    pattern.clear(Weft);
    EXPECT_EQ(draft(pattern), "1111/1111/1111");
}

TEST(WeavePattern, SizesRepeatAndCrop) {
    WeavePattern pattern = WeavePattern::makePlain();
    for (auto const& [width, height] : {std::pair{0, 5}, {5, -1}, {65536, 65536}}) {
        pattern.setSize(width, height);
        EXPECT_EQ(draft(pattern), "01/10");
    }
    pattern.setSize(4, 4);
    EXPECT_EQ(draft(pattern), "0101/1010/0101/1010");
    pattern = patternOf(3, {1, 0, 0});
    pattern.setSize(8, 2);
    EXPECT_EQ(draft(pattern), "10010010/10010010");
    pattern.setSize(2, 1);
    EXPECT_EQ(draft(pattern), "10");
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(pattern.nyxWeavePattern()->cells) % 32, 0u);
    int const cell = 1;
    EXPECT_EQ(draft(WeavePattern(0, 3, &cell)), "00/00");
}

TEST(WeavePattern, EveryChangeLeavesSharersAlone) {
    int cells[] = {1, 1, 1};
    nyx::WeavePattern const record{3, 1, cells};
    std::vector<void (*)(WeavePattern&)> const changes = {
        [](WeavePattern& p) { p.set(0, 0, Weft); },
        [](WeavePattern& p) { p.flip(1, 1); },
        [](WeavePattern& p) { p.invert(); },
        [](WeavePattern& p) { p.clear(Weft); },
        [](WeavePattern& p) { p.setSize(3, 3); },
        [](WeavePattern& p) { p.setWidth(Weft, 0.25f); },
        [](WeavePattern& p) { p.setTension(Warp, 0.25f); },
        [](WeavePattern& p) { p.setKind(Warp, Ribbon); },
        [](WeavePattern& p) { p.setFromJson("{\"pattern_mask\":[1]}"); },
    };
    for (WeavePattern const& original : {WeavePattern(), WeavePattern::makePlain()}) {
        std::uint64_t const hash = original.hash();
        for (auto const change : changes) {
            WeavePattern copy = original;
            EXPECT_EQ(copy.nyxWeavePattern(), original.nyxWeavePattern());
            change(copy);
            EXPECT_FALSE(copy.equals(original));
            EXPECT_NE(copy.hash(), hash);
            WeavePattern moved = std::move(copy);
            copy.invert(); // a moved-from pattern is a default one
            EXPECT_EQ(draft(copy), "11/11");
            moved = moved.equals(original) ? copy : original;
            EXPECT_TRUE(moved.equals(original));
        }
        WeavePattern same = original;
        same.setKind(Weft, Round);
        EXPECT_EQ(same.nyxWeavePattern(), original.nyxWeavePattern());
        same.setWidth(Weft, original.width(Weft));
        EXPECT_NE(same.nyxWeavePattern(), original.nyxWeavePattern());
        same.setFromNyxPattern(record);
        EXPECT_EQ(draft(same), "111");
        EXPECT_EQ(yarns(same), yarns(original));
        same.setFromNyxPattern({3, 1, nullptr});
        same.setFromNyxPattern({0, 1, cells});
        same.setFromNyxPattern(*same.nyxWeavePattern());
        EXPECT_EQ(draft(same), "111");
        EXPECT_EQ(original.hash(), hash);
    }
}

TEST(WeavePattern, HandlesOfOneGridWorkOnSeveralThreads) {
    constexpr std::size_t count = 4;
    std::vector<WeavePattern> handles[count];
    for (int round = 0; round < 3000; ++round) {
        WeavePattern const original = round % 2 == 0 ? WeavePattern::makePlain() : WeavePattern();
        for (auto& list : handles) {
            list.push_back(original);
        }
    } // the originals are gone: whoever is last changes the shared grid itself
    auto const change = [](WeavePattern& pattern, std::size_t i) {
        pattern.set(2, static_cast<int>(i), Weft);
        pattern.setWidth(Warp, static_cast<float>(i));
    };
    std::thread threads[count];
    for (std::size_t i = 0; i < count; ++i) {
        threads[i] = std::thread([&change, &list = handles[i], i] {
            for (WeavePattern& handle : list) {
                if (i % 2 == 0) { // not all, as this also orders what the threads do
                    WeavePattern const copy = handle;
                }
                change(handle, i);
            }
        });
    }
    for (std::size_t i = 0; i < count; ++i) {
        threads[i].join();
        for (std::size_t round = 0; round < handles[i].size(); ++round) {
            WeavePattern wanted = round % 2 == 0 ? WeavePattern::makePlain() : WeavePattern();
            change(wanted, i);
            ASSERT_TRUE(handles[i][round].equals(wanted)) << round;
        }
    }
}

TEST(WeavePattern, EqualityIsFuzzyAndHashingLeavesTheModulusOut) {
    WeavePattern const plain = WeavePattern::makePlain();
    WeavePattern other = WeavePattern::makePlain();
    other.setWidth(Warp, 0.700001f);
    EXPECT_TRUE(other.equals(plain));
    other.setWidth(Warp, 0.70001f);
    EXPECT_FALSE(other.equals(plain));
    WeavePattern zero = WeavePattern::makePlain();
    zero.setTension(Weft, 0);
    other = WeavePattern::makePlain();
    other.setTension(Weft, 1e-30f);
    EXPECT_FALSE(zero.equals(other));
    other.setTension(Weft, 0);
    EXPECT_TRUE(zero.equals(other));

    QString text = plain.toJson();
    ASSERT_TRUE(other.setFromJson(text.replace("\"modulus\":[1.0,1.0]", "\"modulus\":[1.0,2.0]")));
    EXPECT_FALSE(other.equals(plain));
    EXPECT_EQ(other.hash(), plain.hash());
    EXPECT_FALSE(patternOf(1, {0}).equals(patternOf(1, {0, 1})));
    EXPECT_FALSE(patternOf(1, {0}).equals(patternOf(2, {0, 1})));

    EXPECT_EQ(WeavePattern().hash(), 0x41637c984422cafbu);
    EXPECT_EQ(WeavePattern::makeHerringbone().hash(), 0x71116e1c8452aaa5u);
    // Cells that the renderer set to other values count as they are.
    EXPECT_EQ(draft(fromRecord({0, 1, -7})), "01-7");
    EXPECT_EQ(fromRecord({0, 1, -7}).hash(), 0x1115c948d7543cc3u);
}

TEST(WeavePattern, PresetIsSourceText) {
    WeavePattern pattern = patternOf(3, {1, 0, 1});
    pattern.setWidth(Weft, 0.123456f);
    pattern.setKind(Weft, Ribbon);
    std::streamsize const precision = std::cout.precision(9);
    testing::internal::CaptureStdout();
    pattern.printPreset();
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "const int pattern[] = {1, 0, 1, };\n\n"
              "std::unique_ptr<WeavePattern> weave = std::make_unique<WeavePattern>(3,1, pattern);"
              "weave.setWidth(YarnType::Warp, 0.4);\nweave.setTension(YarnType::Warp, 1);\n"
              "weave.setKind(YarnType::Warp, YarnKind::Round);\n"
              "weave.setWidth(YarnType::Weft, 0.1235);\nweave.setTension(YarnType::Weft, 1);\n"
              "weave.setKind(YarnType::Weft, YarnKind::Ribbon);\nreturn weave;");
    EXPECT_EQ(std::cout.precision(), 4);
    std::cout.precision(precision);
}
