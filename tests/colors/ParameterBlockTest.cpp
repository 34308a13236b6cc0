#include "zsg/colors/ParameterBlock.h"

#include "support/TestScene.h"

#include <cstring>
#include <vector>

using namespace zsg;

namespace {

using ParameterBlockTest = TestScene;

std::string const full(40, 'f'); // leaves no room for a terminator
std::string_view const names[] = {"id", "flags", full, "missing"};
constexpr std::int32_t kind = 9;

} // namespace

TEST_F(ParameterBlockTest, FindsEntriesByExactNameAndTakesBrokenBlocksForEmpty) {
    ParameterBlock::Layout const layout{kind, names, &nyxRT_api::commit_color_params,
                                        &nyxRT_api::release_color_params};
    std::string_view const present[] = {"id", "Flags", "", "flag", "id", "flags", "x", full};
    std::vector<nyxParameter_entry> entries(std::size(present));
    for (std::size_t i = 0; i < entries.size(); ++i) {
        std::memcpy(entries[i].name, present[i].data(), present[i].size());
        entries[i].value.word = static_cast<std::uint32_t>(i);
    }
    nyxParameter_edit block;
    block.kind = kind;
    block.entries = entries.data();
    block.count = static_cast<std::int32_t>(entries.size());
    auto const found = [&](ParameterBlock const& made) {
        return std::vector{made.word(0, 99), made.word(1, 99), made.word(2, 99), made.word(3, 99)};
    };
    EXPECT_EQ(found({nullptr, &block, layout}), (std::vector{4u, 5u, 7u, 99u}));
    block.count = -1;
    EXPECT_EQ(found({nullptr, &block, layout}), std::vector(4, 99u));
    block.entries = nullptr;
    block.count = 3;
    EXPECT_EQ(found({nullptr, &block, layout}), std::vector(4, 99u));

    block.entries = entries.data();
    ParameterBlock const made(nullptr, &block, layout);
    entries[0].value.list = {nullptr, 3};
    EXPECT_TRUE(made.ids(0).empty());
    nyx::ColorId id(1);
    entries[0].value.list = {&id, -1};
    EXPECT_TRUE(made.ids(0).empty());
}
