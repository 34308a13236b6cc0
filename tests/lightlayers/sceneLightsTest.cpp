#include "lightlayers/sceneLights.h"

#include "lightlayers/LightScene.h"

#include "nyxrender/nyxGroup_item.h"
#include "nyxrender/nyxLight_layer_db.h"
#include "nyxrender/nyxScene_hierarchy.h"
#include "nyxrender/nyxShader.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <optional>

using namespace zsg;

namespace {

struct Shader final : nyxShader {
    std::uint32_t light_layer_mask() const override { return mask; }
    bool info(unsigned query) const override { return query == 4100 ? unlisted : true; }
    std::uint32_t mask = 0;
    bool unlisted = false;
};

/// An item as other renderers may have it: with several parents, or with a mask and no shader.
struct Node final : nyxGroup_item {
    nyx::GroupItemId id() const override { return nyx::GroupItemId(number); }
    nyx::ObjectId object_id() const override { return nyx::ObjectId(number); }
    bool is_light() const override { return light; }
    nyx::Span<nyxGroup_item*> children() const override { return below; }
    nyxShader* shader() const override { return has ? &*has : nullptr; }
    std::uint32_t light_layer_mask() const override { return mask; }

    std::uint32_t number = 0;
    bool light = false;
    std::uint32_t mask = 0;
    mutable std::optional<Shader> has;
    std::vector<nyxGroup_item*> below;
};

class SceneLightsTest : public testing::Test, protected nyxScene_hierarchy {
protected:
    Node& group(std::uint32_t number) {
        nodes.emplace_back().number = number;
        return nodes.back();
    }
    Node& light(std::uint32_t number, std::uint32_t mask) {
        Node& node = group(number);
        node.light = true;
        node.mask = mask;
        node.has.emplace();
        node.has->mask = mask;
        return node;
    }
    void walk(std::function<void(nyxGroup_item const&)> const& visit) const override {
        for (Node const& node : nodes) {
            visit(node);
        }
    }
    std::deque<Node> nodes;
};

TEST_F(SceneLightsTest, groupsMayShareHoldEachOtherAndBeNestedDeeply) {
    Node& a = group(1);
    Node& b = group(2);
    Node& shared = light(0xFFFFFFFE, 2);
    Node& last = light(513, 1);
    a.below = {&b, &shared, &last};
    b.below = {&shared, &a};
    Node& lantern = light(9, 4); // a light may have lights below it, too
    lantern.below = {&last};
    EXPECT_EQ(numbers(lightsOfItems({&b, &shared, &a, &b, &lantern})), " 9 513 4294967294");
    EXPECT_EQ(numbers(lightsOfItems({&lantern})), " 9") << "those stay where they are";
    Node& hall = group(10);
    hall.below = {&lantern};
    EXPECT_EQ(numbers(lightsOfItems({&lantern, &hall})), " 9 513");
    EXPECT_EQ(masksOfItems({&b, &lantern}), (std::vector<std::uint32_t>{1, 2, 4}));

    EXPECT_EQ(numbers(lightsOfItems({&light(600, 1), &light(88, 1)})), " 88 600");

    // Each holds the next one twice: more ways lead to the light than can be gone.
    Node* above = &light(200'000, 8);
    for (std::uint32_t number = 1000; number < 101'000; ++number) {
        Node& next = group(number);
        next.below = {above, above};
        above = &next;
    }
    EXPECT_EQ(numbers(lightsOfItems({above})), " 200000");
    EXPECT_EQ(masksOfItems({above}), std::vector<std::uint32_t>{8});
}

TEST_F(SceneLightsTest, masksComeFromShadersAndListsFromItems) {
    light(5, 1);
    light(4, 0x40); // which names no layer
    light(3, 1).has->unlisted = true;
    light(2, 8).has.reset();
    group(6).mask = 1; // an object that is no light but is in a layer
    EXPECT_EQ(masksOfItems({&nodes[0], &nodes[1], &nodes[2], &nodes[3]}),
              (std::vector<std::uint32_t>{1, 0x40}));
    EXPECT_EQ(numbers(objectsWithMask(this, 1)), " 5 6");
    EXPECT_EQ(numbers(objectsWithMask(this, 8)), " 2");
    nyxLight_layer_db layers;
    layers.create_layer("", nyx::LightLayerId(1));
    auto const lights = lightsByLayer(this, layers);
    ASSERT_EQ(lights.size(), 1u);
    EXPECT_EQ(numbers(lights.at(nyx::LightLayerId(1))), " 5");
}

} // namespace
