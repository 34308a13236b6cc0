#include "colors/ControllerScene.h"

#include <limits>

using namespace zsg;

using ZColorExtEditTest = ControllerScene;

TEST_F(ZColorExtEditTest, SettersCountRealChangesOnly) {
    ZColorExtEdit state(api(), api()->color_params(cover));
    float const nan = std::numeric_limits<float>::quiet_NaN();
    auto const rgba = [](float r, float alpha) { return nyxColor_rgba{r, 0, 0, alpha}; };
    struct {
        char const* what;
        std::function<void()> set;
        unsigned changes;
    } const rows[] = {
        {"same value", [&] { state.setColor(rgba(0, 1)); }, 0},
        {"alpha alone", [&] { state.setColor(rgba(0, 0.5f)); }, 1},
        {"not a number", [&] { state.setColor(rgba(nan, 0.5f)); }, 1},
        {"same up to a zero byte", [&] { state.setDisplayName(std::string("Cover\0x", 7)); }, 0},
        {"no name", [&] { state.setDisplayName(""); }, 1},
        {"a flag beside one that is set", [&] { state.setFlag(1 | 8); }, 0},
        {"two flags", [&] { state.setFlag(4 | 8); }, 1},
        {"two flags of which one is set", [&] { state.clearFlag(8 | 16); }, 1},
        {"a flag that is not set", [&] { state.clearFlag(8 | 16); }, 0},
        {"same list", [&] { state.setSubColors(ids(red, green)); }, 0},
        {"own list, cut", [&] { state.setSubColors(nyx::Span(state.subColors().data() + 1, 1)); },
         1},
        {"other list", [&] { state.setSubColors(ids(green, red)); }, 1},
        {"same active", [&] { state.setActiveSub(red); }, 0},
        {"other active", [&] { state.setActiveSub(green); }, 1},
        {"replace by a listed one", [&] { state.replaceSubColor(red, green); }, 0},
        {"replace an inactive one", [&] { state.replaceSubColor(red, ColorId(77)); }, 1},
        {"replace the active one", [&] { state.replaceSubColor(green, ColorId(78)); }, 2},
        {"no cover-colour", [&] { state.clearFlag(ColorFlags::MultiColor); }, 1},
        {"replace in a plain one", [&] { state.replaceSubColor(ColorId(78), green); }, 0},
    };
    for (auto const& row : rows) {
        unsigned const before = state.revision();
        state.commit(true);
        row.set();
        EXPECT_EQ(state.revision() - before, row.changes) << row.what;
        EXPECT_EQ(state.isModified(), row.changes != 0) << row.what;
    }
    EXPECT_EQ(list(state.subColors()), ids(78u, 77u));
    EXPECT_EQ(state.activeSub(), ColorId(78));
    EXPECT_FALSE(state.hasSubColor(ColorId(77))); // listed, but no cover-colour any more
}

TEST_F(ZColorExtEditTest, MissingParametersReadAsDefaultsAndAreNotSet) {
    for (int missing = 0; missing < 7; ++missing) {
        SCOPED_TRACE(missing);
        nyxParameter_edit* const block = api()->color_params(cover);
        block->entries[missing].name[0] = '_';
        ZColorExtEdit state(api(), block);
        EXPECT_EQ(state.id(), missing == 0 ? ColorId() : cover);
        EXPECT_EQ(state.displayName(), missing == 1 ? "" : "Cover");
        EXPECT_EQ(state.hasFlag(ColorFlags::MultiColor), missing != 4);
        EXPECT_EQ(state.subColors().size(), missing == 5 ? 0u : 2u);
        EXPECT_EQ(state.activeSub(), missing == 6 ? ColorId() : red);
        state.setColor({1, 2, 3, 4}), state.setDisplayName("New"), state.setFlag(8);
        state.setSubColors({}), state.setActiveSub(green);
        EXPECT_EQ(state.revision(), missing == 0 || missing == 2 ? 5u : 4u);
        EXPECT_EQ(state.color().r + state.color().a, missing == 3 ? 1 : 5);
    }
}

TEST_F(ZColorExtEditTest, CopiesAreWrittenToTheirOwnRecordAndCommitsOnlyWhenChanged) {
    ZColorExtEdit state(api(), api()->color_params(red));
    EXPECT_FALSE(state.commit(false));
    state.setColor({0.25f, 0, 0, 1});
    auto const copy = state.copyFor(green);
    EXPECT_EQ(copy->id(), green);
    EXPECT_EQ(calls([&] { EXPECT_TRUE(copy->commit(false) && !copy->commit(false)); }),
              "commit_color_params 2");
    EXPECT_EQ(copy->revision(), 1u);
    EXPECT_TRUE(state.isModified());
    EXPECT_EQ(db->getColorParameters(red)->color().r, 1);
    EXPECT_EQ(db->getColorParameters(green)->color().r, 0.25f);

    renderer.faults().noScene = true; // nobody to own a text
    state.setDisplayName("Lost");
    EXPECT_EQ(state.displayName(), "Red");
}

TEST_F(ZColorExtEditTest, ABlockOfAnotherKindIsLeftAlone) {
    nyxParameter_edit* const colorBlock = api()->color_params(cover);
    nyxParameter_edit* const settingsBlock = api()->color_settings_params();
    {
        ZColorExtEdit state(api(), settingsBlock);
        state.replaceSubColor(red, ColorId(9));
        EXPECT_FALSE(state.commit(true) || state.copyFor(red)->commit(true) ||
                     state.id().isValid());
        EXPECT_EQ(state.color().a, 1);
        ZColorSettingsEdit settings(api(), colorBlock);
        settings.setActiveColorwayId(ColorwayId(1));
        EXPECT_FALSE(settings.commit(true) || settings.activeColorwayId().isValid());
        ZColorwayEdit colorway(api(), colorBlock);
        EXPECT_FALSE(colorway.isModified() || colorway.commit(true));
    }
    EXPECT_EQ(renderer.ledger().blocks, 2u);
    api()->release_color_params(colorBlock);
    api()->release_color_settings_params(settingsBlock);
}
