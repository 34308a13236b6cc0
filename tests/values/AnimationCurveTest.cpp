#include "zsg/values/AnimationCurve.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace zsg {
namespace {

using nyx::AnimationKey;
using nyx::KeyType;

AnimationKey key(float x, float y, KeyType type = KeyType::U) {
    return {{x, y}, {x - 0.25f, y - 1}, {x + 0.25f, y + 2}, type};
}

AnimationKey bare(float x, float y, KeyType type = KeyType::U) {
    return {{x, y}, {x, y}, {x, y}, type};
}

AnimationCurve threeKeys() { return {key(0, 0), key(1, 10), key(2, 5)}; }

/// y of the drawn curve, which is where a new key comes to lie.
float heightAt(AnimationCurve curve, float x) { return curve.keyAt(curve.insertKey(x)).pos.y; }

} // namespace

TEST(AnimationCurve, KeepsKeysInOrder) {
    struct Row {
        int index;
        AnimationKey wanted;
        bool accepted;
    };
    Row const rows[] = {
        {1, {{1.5, 3}, {-9, 3}, {9, 3}, KeyType::L}, true}, // handles past the neighbours
        {1, {{2.5, 3}, {2, 3}, {2.75, 3}}, false},          // past the next key
        {1, {{-1, 3}, {-2, 3}, {0, 3}}, false},             // past the previous key
        {1, bare(2, 3), true},                              // on the next key
        {1, bare(0, 3), true},                              // on the previous key
        {1, {{1, 3}, {1.1f, 3}, {1.2f, 3}}, false},         // handles on the wrong side
        {1, {{1, 3}, {0.5, 3}, {0.9f, 3}}, false},
        {0, {{0, 3}, {5, 3}, {0.5, 3}}, true}, // nothing lies that way
        {0, {{0, 3}, {0, 3}, {-0.1f, 3}}, false},
        {2, {{2, 3}, {1.5, 3}, {0, 3}}, true},
        {2, {{2, 3}, {2.1f, 3}, {2, 3}}, false},
        {1, {{1, 3}, {NAN, 3}, {2, 3}}, false},
        {1, {{1, 3}, {0.5, 3}, {NAN, 3}}, true},
        {1, key(1, 10), false}, // as it is
        {1, key(1, 10, KeyType::T), true},
        {-1, key(1, 3), false},
        {3, key(1, 3), false},
    };
    for (Row const& row : rows) {
        AnimationCurve curve = threeKeys();
        EXPECT_EQ(curve.setKey(row.index, row.wanted), row.accepted) << &row - rows;
        EXPECT_EQ(curve == threeKeys(), !row.accepted) << &row - rows;
    }
    EXPECT_TRUE((AnimationCurve{bare(0, 0), bare(1, 1), bare(2, 2)}).setPos(1, {1, 0}));
    // A neighbour that is wrong itself blocks the key.
    EXPECT_FALSE((AnimationCurve{key(0, 0), {{1, 1}, {2, 1}, {1, 1}}}).setPos(0, {0, 1}));
    EXPECT_FALSE((AnimationCurve{{{0, 0}, {0, 0}, {-1, 0}}, key(1, 0)}).setPos(1, {1, 1}));
}

TEST(AnimationCurve, MovesPointsOfOneKey) {
    AnimationCurve curve{key(0, 0), key(10, 10), key(20, 5)};
    EXPECT_TRUE(curve.setIn(1, {7, 6}) && curve.setOut(1, {13, 14}) &&
                curve.setPos(1, {10, 10}) == false && curve.setWeightIn(1, 10) &&
                curve.setWeightOut(1, 2.5f));
    EXPECT_EQ(curve, (AnimationCurve{key(0, 0), {{10, 10}, {4, 2}, {11.5, 12}}, key(20, 5)}));
    EXPECT_TRUE(curve.setWeightIn(1, -3) && curve.setWeightOut(1, NAN));
    EXPECT_EQ(curve, (AnimationCurve{key(0, 0), bare(10, 10), key(20, 5)}));
    EXPECT_FALSE(curve.setWeightIn(1, INFINITY) || curve.setWeightOut(1, INFINITY));
    // A handle on its key points backwards, which an outgoing one may do at the last key only.
    EXPECT_TRUE(curve.setWeightIn(1, 2) && curve.removeKey(2));
    EXPECT_TRUE(curve.setWeightOut(1, 3));
    EXPECT_EQ(curve, (AnimationCurve{key(0, 0), {{10, 10}, {8, 10}, {7, 10}}}));
    EXPECT_TRUE(curve.setOut(0, {0, 0}));
    EXPECT_FALSE(curve.setWeightOut(0, 2));
    for (int const index : {-1, 2}) {
        EXPECT_FALSE(curve.setPos(index, {}) || curve.setIn(index, {}) || curve.setOut(index, {}) ||
                     curve.setWeightIn(index, 1) || curve.setWeightOut(index, 1) ||
                     curve.removeKey(index));
    }
}

TEST(AnimationCurve, ExchangesNumbersAndLetters) {
    nyxArray<float> numbers;
    for (float f = 48; f > 0; --f) { // not in order
        numbers.push_back(f);
    }
    AnimationCurve curve;
    EXPECT_TRUE(curve.load(numbers, "UTsSLx0u"));
    EXPECT_TRUE(curve.keyAt(0).in.x == 48 && curve.keyAt(0).pos.y == 45);
    EXPECT_EQ(curve.keyAt(4).type, KeyType::L);
    nyxArray<float> stored{1};
    std::string types = "something else";
    curve.store(stored, types);
    EXPECT_EQ(stored, numbers);
    EXPECT_EQ(types, "UTsSLUUU");

    AnimationCurve const before = curve;
    testing::internal::CaptureStderr();
    EXPECT_FALSE(curve.load(numbers, nullptr) || curve.load(nyxArray<float>(10), "LL") ||
                 curve.load(nyxArray<float>(6), "L"));
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "Invalid animation curve, got 2 keys but 5 control points\n"
              "Invalid animation curve, got 1 keys but 3 control points\n");
    EXPECT_EQ(curve, before);
    for (float& number : stored) { // every number counts, and every key
        ++number;
        EXPECT_TRUE(curve.load(stored, "UTsSLUUU"));
        EXPECT_FALSE(curve == before) << number;
        --number;
    }
    EXPECT_TRUE(curve.load(stored, "UTsSLUUU") && curve == before && curve.removeKey(7));
    EXPECT_FALSE(curve == before || before == curve);

    nyxVector2f const points[] = {{3, 4}, {1, 2}};
    KeyType const kinds[] = {static_cast<KeyType>(7), KeyType::S};
    curve.setCurve(AnimationCurve(points, kinds, 2));
    EXPECT_EQ(curve, AnimationCurve(std::vector{bare(3, 4, kinds[0]), bare(1, 2, kinds[1])}));
    curve.store(stored, types);
    EXPECT_EQ(types, "0S");
}

TEST(AnimationCurve, InsertsByTheTypeOfThePlace) {
    AnimationCurve curve;
    EXPECT_EQ(curve.insertKey(3), 0);
    EXPECT_EQ(curve, AnimationCurve{bare(3, 0)});
    AnimationKey const last = key(1, 9, KeyType::L);
    curve = {key(0, 7, KeyType::L), last};
    EXPECT_EQ(curve.insertKey(-2), 0);
    EXPECT_EQ(curve.insertKey(1), 3); // behind the key that is there
    EXPECT_EQ(curve, (AnimationCurve{bare(-2, 7), key(0, 7, KeyType::L), last, bare(1, 9)}));
    EXPECT_EQ(curve.insertKey(NAN), 4); // no key lies behind it

    for (AnimationKey const& wanted : {AnimationKey{{1.5, 3}, {1, 2}, {3, 6}, KeyType::L},
                                       AnimationKey{{1.5, 0}, {1, 0}, {3, 0}, KeyType::s},
                                       AnimationKey{{1.5, 12}, {1, 12}, {3, 12}, KeyType::S}}) {
        curve = {key(0, 0, wanted.type), key(6, 12)};
        EXPECT_EQ(curve.insertKey(1.5), 1);
        EXPECT_EQ(curve, (AnimationCurve{key(0, 0, wanted.type), wanted, key(6, 12)}));
    }
    curve = {{{0, 0}, {0, 0}, {0, 8}, KeyType::T}, {{8, 8}, {8, 0}, {9, 9}}};
    EXPECT_EQ(curve.insertKey(4), 1);
    EXPECT_EQ(curve, (AnimationCurve{{{0, 0}, {0, 0}, {0, 4}, KeyType::T},
                                     {{4, 4}, {2, 4}, {6, 4}},
                                     {{8, 8}, {8, 4}, {9, 9}}}));
    EXPECT_EQ(curve.insertKey(4), 2); // two keys there: the first is left without its handle
    EXPECT_EQ((AnimationCurve{curve.keyAt(1), curve.keyAt(2)}),
              (AnimationCurve{{{4, 4}, {2, 4}, {4, 4}}, {{4, 4}, {4, 4}, {6, 4}}}));
    // Where the curve runs backwards the handles stay on their sides, for setKey() to accept the
    // key.
    curve = {{{0, 0}, {0, 0}, {5, 0}}, {{1, 0}, {-4, 0}, {1, 0}}};
    EXPECT_EQ(curve.insertKey(0.5), 1);
    EXPECT_EQ(curve, (AnimationCurve{
                         {{0, 0}, {0, 0}, {2.5, 0}}, bare(0.5, 0), {{1, 0}, {-1.5, 0}, {1, 0}}}));
}

TEST(AnimationCurve, ManyInsertionsKeepShapeAndOrder) {
    std::mt19937 random(11);
    std::uniform_real_distribution<float> part(0, 1);
    for (int round = 0; round < 8; ++round) {
        AnimationCurve before;
        nyxArray<float> n;
        for (float x = 0; x < 6; ++x) {
            n.insert(n.end(), {x - part(random), part(random), x, part(random), x + part(random),
                               part(random)});
        }
        ASSERT_TRUE(before.load(n, "UTsSLU"));
        AnimationCurve after = before;
        for (int i = 0; i < 40; ++i) {
            float const x = 5 * part(random);
            ASSERT_EQ(after.keyAt(after.insertKey(x)).pos.x, x);
        }
        for (float x = 0.005f; x < 5; x += 0.01f) {
            ASSERT_NEAR(heightAt(after, x), heightAt(before, x), 1e-3) << round << ' ' << x;
        }
        for (int i = 0; i < after.keyCount(); ++i) {
            AnimationKey raised = after.keyAt(i);
            raised.pos.y += 1;
            ASSERT_TRUE(after.setKey(i, raised)) << round << ' ' << i;
        }
    }
}

} // namespace zsg
