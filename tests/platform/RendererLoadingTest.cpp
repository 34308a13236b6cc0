#include "nyxembedded/Renderer.h"

#include "nyxrender/nyxRT_api.h"

#include <gtest/gtest.h>

#include <cmath>

using nyx::embedded::Renderer;

TEST(RendererLoading, ZeroBytesAreRefusedAndANotANumberKeepsItsSign) {
    Renderer renderer;
    auto const load = [&](std::string const& name) {
        return renderer.loadSceneText(
            R"({"format":"zsg-scene","version":1,"colors":[{"id":1,"name":)" + name +
            R"(,"value":["-nan","nan",0,1]}]})");
    };
    EXPECT_EQ(load(R"("a\u0000b")"), "/colors/0/name: a text cannot contain a zero byte");
    EXPECT_EQ(load(R"({"hex":"ff00"})"), "/colors/0/name: a text cannot contain a zero byte");
    ASSERT_EQ(load(R"("ab")"), "");
    ASSERT_EQ(renderer.loadSceneText(renderer.saveSceneText()), "");
    nyxColor_rgba const value = renderer.color(nyx::ColorId(1))->value;
    EXPECT_TRUE(std::isnan(value.r) && std::signbit(value.r));
    EXPECT_TRUE(std::isnan(value.g) && !std::signbit(value.g));
}

TEST(RendererLoading, BlocksOfASceneThatWasReplacedAreNotCommitted) {
    Renderer renderer;
    nyx::ColorId const id = renderer.addColor("Red", {1, 0, 0, 1});
    nyxParameter_edit* const old = renderer.api()->color_params(id);
    nyxParameter_edit* const oldSettings = renderer.api()->color_settings_params();
    std::string const text = renderer.saveSceneText();
    ASSERT_EQ(renderer.changeColor(id, {0, 1, 0, 1}), true);
    ASSERT_EQ(renderer.loadSceneText(text), "");
    nyxParameter_edit* const copy = renderer.api()->clone_color_params(old, true);
    nyxParameter_edit* const fresh = renderer.api()->color_params(id);
    ASSERT_EQ(renderer.changeColor(id, {0, 0, 1, 1}), true);
    std::string const before = renderer.dump();
    renderer.api()->commit_color_params(old);
    renderer.api()->commit_color_params(copy);
    renderer.api()->commit_color_settings_params(oldSettings);
    EXPECT_EQ(renderer.dump(), before);
    renderer.api()->commit_color_params(fresh);
    EXPECT_NE(renderer.dump(), before);
    for (nyxParameter_edit* const block : {old, copy, fresh}) {
        renderer.api()->release_color_params(block);
    }
    renderer.api()->release_color_settings_params(oldSettings);
    EXPECT_EQ(renderer.ledger().blocks, 0u);
}
