#include "colors/colorwayPairs.h"

#include <gtest/gtest.h>

using namespace zsg;
using Numbers = std::vector<unsigned>;

namespace {

std::vector<nyx::ColorId> ids(Numbers const& numbers) { return {numbers.begin(), numbers.end()}; }

} // namespace

TEST(ColorwayPairs, RepairCutsAndKeepsTheFirstPairOfEachMultiColor) {
    struct {
        Numbers multis, subs;
        bool repaired;
        Numbers newMultis, newSubs;
    } const rows[] = {
        {{5, 3}, {50, 30}, false, {}, {}},
        {{5, 3, 5}, {50, 30, 51}, true, {3, 5}, {30, 50}},
        {{5}, {50, 30}, true, {5}, {50}},
        {{5, 3}, {}, true, {}, {}},
        {{5, 3, 5}, {50, 30}, true, {5, 3}, {50, 30}},
        {{9, 9, 0xFFFFFFFF, 1, 9}, {3, 2, 7, 8, 1}, true, {1, 9, 0xFFFFFFFF}, {8, 3, 7}},
    };
    for (auto const& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.multis) + testing::PrintToString(row.subs));
        auto const pairs = repairedPairs(ids(row.multis), ids(row.subs));
        ASSERT_EQ(pairs.has_value(), row.repaired);
        if (pairs) {
            EXPECT_EQ(pairs->multiColors, ids(row.newMultis));
            EXPECT_EQ(pairs->activeSubs, ids(row.newSubs));
            EXPECT_FALSE(repairedPairs(pairs->multiColors, pairs->activeSubs));
        }
    }
}
