#include "colors/parameterBlock.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

using namespace zsg;

TEST(ParameterBlock, FindsEntriesByExactNameAndTakesBrokenBlocksForEmpty) {
    std::string const full(40, 'f'); // leaves no room for a terminator
    std::string_view const present[] = {"flags", "Flags", "", "flag", "id", "flags", "x", full};
    std::vector<nyxParameter_entry> entries(std::size(present));
    for (std::size_t i = 0; i < entries.size(); ++i) {
        std::memcpy(entries[i].name, present[i].data(), present[i].size());
    }
    nyxParameter_edit block;
    block.entries = entries.data();
    block.count = static_cast<std::int32_t>(entries.size());

    std::string_view const names[] = {"id", "flags", full, "missing"};
    auto const found = [&] {
        std::vector<nyxParameter_entry*> result(std::size(names));
        parameterBlock::findEntries(block, names, result);
        return result;
    };
    nyxParameter_entry* const none = nullptr;
    EXPECT_EQ(found(), (std::vector{&entries[4], &entries[5], &entries[7], none}));
    block.count = -1;
    EXPECT_EQ(found(), std::vector(4, none));
    block = {};
    block.count = 3;
    EXPECT_EQ(found(), std::vector(4, none));

    nyxParameter_entry broken;
    broken.value.list = {nullptr, 3};
    EXPECT_TRUE(parameterBlock::ids(&broken).empty());
    nyx::ColorId id(1);
    broken.value.list = {&id, -1};
    EXPECT_TRUE(parameterBlock::ids(&broken).empty());
}
