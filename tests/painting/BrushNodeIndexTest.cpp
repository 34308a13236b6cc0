#include "painting/BrushNodeIndex.h"

#include "painting/BrushScene.h"

namespace zsg {
namespace {

constexpr int Float = nyxScene_api::TypeFloat;

TEST(BrushNodeIndex, KeysFollowTheLinks) {
    HandMadeNode root, basic, size;
    auto* const own = &root.add("value", Float);
    root.link("basic", &basic);
    basic.link("size_px", &size);
    basic.link("size_world", &size);
    auto* const inner = &size.add("value", Float);
    auto* const late = &root.add("late", Float); // after a link, so the prefix is gone again

    BrushNodeIndex const index(&root);
    EXPECT_EQ(index.find("value"), own);
    EXPECT_EQ(index.find("late"), late);
    EXPECT_EQ(index.find("basic_size_px_value"), inner);
    EXPECT_EQ(index.find("basic_size_world_value"), inner);
    EXPECT_EQ(index.find("basic"), nullptr) << "a link is no parameter";
    using Nodes = std::vector<nyx::painter::nyxBrush_node*>;
    EXPECT_EQ(index.nodes(), (Nodes{&root, &basic, &size, &size}));
}

TEST(BrushNodeIndex, OddGraphsEndTheWalkWhereTheyAreOdd) {
    HandMadeNode root, child;
    root.link("nothing", nullptr);
    root.pointers.push_back(nullptr);
    root.link("child", &child);
    child.link("back", &root);
    child.link("self", &child);
    child.add(nullptr, Float);
    root.add("child_twice", Float);
    auto* const later = &child.add("twice", Float);
    root.pointers[2] = &root.records[2]; // the first of the two is now the one on the root
    root.pointers[3] = &root.records[1];

    BrushNodeIndex const index(&root);
    EXPECT_EQ(index.nodes().size(), 2u);
    EXPECT_EQ(index.find("child_twice"), later) << "of two records the later one counts";
    EXPECT_NE(index.find("child_"), nullptr) << "a record without a name";
    EXPECT_TRUE(BrushNodeIndex(nullptr).nodes().empty());

    std::vector<HandMadeNode> chain(20'000);
    for (std::size_t i = 1; i < chain.size(); ++i) {
        chain[i - 1].link("", &chain[i]);
    }
    chain.back().add("end", Float);
    EXPECT_NE(BrushNodeIndex(&chain[0]).find(std::string(chain.size() - 1, '_') + "end"), nullptr);
}

} // namespace
} // namespace zsg
