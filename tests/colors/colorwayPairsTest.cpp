#include "colors/colorwayPairs.h"

#include <gtest/gtest.h>

using namespace zsg;

namespace {

std::vector<MultiColorPair> pairs(std::vector<std::pair<unsigned, unsigned>> const& numbers) {
    std::vector<MultiColorPair> list;
    for (auto const& [multi, sub] : numbers) {
        list.push_back({nyx::ColorId(multi), nyx::ColorId(sub)});
    }
    return list;
}

} // namespace

TEST(ColorwayPairs, OfAMultiColorListedAgainTheFirstPairCounts) {
    EXPECT_EQ(distinctPairs({}), std::nullopt);
    EXPECT_EQ(distinctPairs(pairs({{5, 50}, {3, 30}})), std::nullopt);
    EXPECT_EQ(distinctPairs(pairs({{5, 50}, {3, 30}, {5, 51}})), pairs({{3, 30}, {5, 50}}));
    EXPECT_EQ(distinctPairs(pairs({{9, 3}, {9, 2}, {0xFFFFFFFF, 7}, {1, 8}, {9, 1}})),
              pairs({{1, 8}, {9, 3}, {0xFFFFFFFF, 7}}));
}
