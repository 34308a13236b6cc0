#include "colors/EditIndex.h"

#include "nyxrender/Ids.h"

#include <gtest/gtest.h>

using namespace zsg;

TEST(EditIndex, FindsWhatWasSetLastWhateverTheId) {
    EditIndex<nyx::ColorId, int> index;
    std::uint32_t const numbers[] = {0, 1, 127, 128, 100'000, 0xFFFFFF, 0x1000000, 0xFFFFFFFF};
    for (std::uint32_t const number : numbers) {
        EXPECT_EQ(index.find(nyx::ColorId(number)), nullptr) << number;
        index.erase(nyx::ColorId(number));
        index.set(nyx::ColorId(number), std::make_unique<int>(-1));
        EXPECT_EQ(*index.set(nyx::ColorId(number), std::make_unique<int>(int(number % 1000))),
                  int(number % 1000));
    }
    for (std::uint32_t const number : numbers) {
        ASSERT_TRUE(index.find(nyx::ColorId(number))) << number;
        EXPECT_EQ(*index.find(nyx::ColorId(number)), int(number % 1000));
        index.erase(nyx::ColorId(number));
        EXPECT_EQ(index.find(nyx::ColorId(number)), nullptr) << number;
    }
}
