#include "nyxembedded/Renderer.h"
#include "nyxembedded/Warnings.h"
#include "nyxrender/nyxRT_api.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

using nyx::embedded::Renderer;

TEST(RendererLoading, BlocksOfASceneThatWasReplacedAreNotCommitted) {
    Renderer renderer;
    nyx::ColorId const id = renderer.colors().add("Red", {1, 0, 0, 1});
    nyx::ColorwayId const way = renderer.colorways().add("Way", {});
    nyxParameter_edit* const old = renderer.api()->color_params(id);
    nyxParameter_edit* const oldWay = renderer.api()->colorway_params(way);
    nyxParameter_edit* const oldSettings = renderer.api()->color_settings_params();
    std::string const text = renderer.saveSceneText();
    ASSERT_EQ(renderer.colors().change(id, {0, 1, 0, 1}), true);
    ASSERT_EQ(renderer.loadSceneText(text), "");
    nyxParameter_edit* const copy = renderer.api()->clone_color_params(old, true);
    nyxParameter_edit* const fresh = renderer.api()->color_params(id);
    ASSERT_EQ(renderer.colors().change(id, {0, 0, 1, 1}), true);
    ASSERT_TRUE(renderer.colorways().activate(way));
    std::string const before = renderer.dump();
    int warnings = 0;
    nyx::embedded::setWarningHandler([&](std::string_view) { ++warnings; });
    renderer.api()->commit_color_params(old);
    renderer.api()->commit_color_params(copy);
    renderer.api()->commit_colorway_params(oldWay);
    renderer.api()->commit_color_settings_params(oldSettings);
    nyx::embedded::setWarningHandler({});
    EXPECT_EQ(renderer.dump(), before);
    EXPECT_EQ(warnings, 1);
    renderer.api()->commit_color_params(fresh);
    EXPECT_NE(renderer.dump(), before);
    for (nyxParameter_edit* const block : {old, copy, fresh}) {
        renderer.api()->release_color_params(block);
    }
    renderer.api()->release_colorway_params(oldWay);
    renderer.api()->release_color_settings_params(oldSettings);
    EXPECT_EQ(renderer.ledger().blocks, 0u);
}
