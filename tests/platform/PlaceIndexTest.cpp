#include "store/PlaceIndex.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

using nyx::MaterialId;

TEST(PlaceIndex, FindingAPlaceComparesOneHoweverManyThereAre) {
    std::vector<std::pair<std::uint32_t, std::string>> places;
    nyx::embedded::PlaceIndex index;
    for (std::uint32_t i = 0; i < 3000; ++i) {
        auto const& [node, parameter] = places.emplace_back(i / 3, std::string(i % 3, 'p'));
        index.add(MaterialId(1), node, parameter, i);
        index.add(MaterialId(2), node, parameter, 3000 + i);
    }
    int asked = 0;
    for (std::uint32_t i = 0; i < 3000; ++i) {
        auto const& [node, parameter] = places[i];
        EXPECT_EQ(index.find(MaterialId(1), node, parameter,
                             [&](std::uint32_t at) {
                                 ++asked;
                                 return at == i;
                             }),
                  i);
    }
    EXPECT_LE(asked, 3010);
    auto const any = [](std::uint32_t) { return true; };
    EXPECT_EQ(index.find(MaterialId(3), 0, "", any), std::nullopt);
    EXPECT_EQ(index.find(MaterialId(1), 1000, "", any), std::nullopt);
    EXPECT_EQ(index.find(MaterialId(1), 0, "q", any), std::nullopt);
}
