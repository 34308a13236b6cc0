#include "colors/parameterBlock.h"

#include "nyxrender/nyx_memory.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

using namespace zsg;
using nyx::ColorId;

namespace {

nyxParameter_entry named(std::string_view name) {
    nyxParameter_entry entry;
    std::memcpy(entry.name, name.data(), name.size());
    return entry;
}

} // namespace

TEST(ParameterBlock, FindsEntriesByExactNameAndTheLastOfAName) {
    std::string const full(40, 'f'); // leaves no room for a terminator
    std::vector<nyxParameter_entry> entries;
    for (std::string_view const name : {"flags", "Flags", "", "flag", "id", "flags", "unknown"}) {
        entries.push_back(named(name));
    }
    entries.push_back(named(full));
    nyxParameter_edit block;
    block.entries = entries.data();
    block.count = static_cast<std::int32_t>(entries.size());

    std::string_view const names[] = {"id", "flags", full, "missing"};
    auto const found = [&] {
        std::vector<nyxParameter_entry*> result(std::size(names));
        parameterBlock::findEntries(block, names, result);
        return result;
    };
    EXPECT_EQ(found(), (std::vector{&entries[4], &entries[5], &entries[7],
                                    static_cast<nyxParameter_entry*>(nullptr)}));
    block.count = -1;
    EXPECT_EQ(found(), std::vector<nyxParameter_entry*>(4));
    block.count = 3;
    block.entries = nullptr;
    EXPECT_EQ(found(), std::vector<nyxParameter_entry*>(4));
}

TEST(ParameterBlock, ReadsBrokenListsAsEmptyAndWritesPartsOfItsOwnList) {
    nyxParameter_entry entry = named("sub_colors");
    ColorId one[] = {ColorId(1)};
    entry.value.list = {nullptr, 3};
    EXPECT_TRUE(parameterBlock::ids(&entry).empty());
    entry.value.list = {one, -1};
    EXPECT_TRUE(parameterBlock::ids(&entry).empty());
    EXPECT_TRUE(parameterBlock::ids(nullptr).empty());

    entry.value.list = {nullptr, 0};
    EXPECT_FALSE(parameterBlock::setIds(nullptr, one));
    EXPECT_FALSE(parameterBlock::setIds(&entry, {}));
    EXPECT_TRUE(parameterBlock::setIds(&entry, {ColorId(1), ColorId(2), ColorId(3)}));
    EXPECT_FALSE(parameterBlock::setIds(&entry, parameterBlock::ids(&entry)));
    EXPECT_TRUE(parameterBlock::setIds(&entry, {entry.value.list.ids + 1, 2}));
    ASSERT_EQ(entry.value.list.count, 2);
    EXPECT_EQ(entry.value.list.ids[0], ColorId(2));
    EXPECT_EQ(entry.value.list.ids[1], ColorId(3));
    EXPECT_TRUE(parameterBlock::setIds(&entry, {}));
    EXPECT_EQ(entry.value.list.ids, nullptr);
}
