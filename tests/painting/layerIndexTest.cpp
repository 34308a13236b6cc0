#include "painting/layerIndex.h"

#include <gtest/gtest.h>

using namespace zsg;

TEST(layerIndex, goesFromEachWayOfSayingWhichLayerToTheNext) {
    std::vector<nyxLayerInfo> layers(3);
    layers[0].id = 7;
    layers[1].id = 3;
    layers[2].id = 7;
    EXPECT_EQ(layerIndexOf(layers, 7), 0u) << "the first match";
    EXPECT_EQ(layerIndexOf(layers, 3), 1u);
    EXPECT_EQ(layerIndexOf(layers, 4), 0xFFFFFFFFu);
    EXPECT_EQ(layerIndexOf({}, 0xFFFFFFFFu), 0xFFFFFFFFu);

    EXPECT_EQ(layerIdAt(layers, 1), 3u);
    EXPECT_EQ(layerIdAt(layers, 3), 0xFFFFFFFFu);
    EXPECT_EQ(layerIdAt(layers, 0u - 1u), 0xFFFFFFFFu) << "above the top";

    EXPECT_EQ(renderIndexOf(3, 0), 2u);
    EXPECT_EQ(renderIndexOf(3, 2), 0u);
    EXPECT_EQ(renderIndexOf(3, renderIndexOf(3, 1)), 1u);
    EXPECT_GT(renderIndexOf(3, 3), 3u) << "out of range on both sides";
}
