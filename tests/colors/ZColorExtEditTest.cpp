#include "colors/ColorScene.h"

#include "nyxrender/nyxParameter_edit.h"

#include <limits>

using namespace zsg;
using nyx::ColorId;

namespace {

class ZColorExtEditTest : public ColorScene {
protected:
    nyxRT_api& api = *renderer.api();
    ColorId const red = color("Red", 1);
    ColorId const blue = color("Blue");
    ColorId const multi = multiColor("Multi", {red, blue});
};

} // namespace

TEST_F(ZColorExtEditTest, SettersCountRealChangesOnly) {
    ZColorExtEdit edit(&api, api.color_params(multi));
    float const nan = std::numeric_limits<float>::quiet_NaN();
    struct {
        char const* what;
        std::function<void()> set;
        unsigned changes;
    } const rows[] = {
        {"same value",
         [&] {
             edit.setColor({0, 0, 0, 1});
         },
         0},
        {"alpha alone",
         [&] {
             edit.setColor({0, 0, 0, 0.5f});
         },
         1},
        {"not a number",
         [&] {
             edit.setColor({nan, 0, 0, 0.5f});
         },
         1},
        {"same up to a zero byte", [&] { edit.setDisplayName(std::string("Multi\0x", 7)); }, 0},
        {"no name", [&] { edit.setDisplayName(""); }, 1},
        {"no name again", [&] { edit.setDisplayName(""); }, 0},
        {"a flag beside one that is set", [&] { edit.setFlag(1 | 8); }, 0},
        {"two flags", [&] { edit.setFlag(4 | 8); }, 1},
        {"two flags of which one is set", [&] { edit.clearFlag(8 | 16); }, 1},
        {"a flag that is not set", [&] { edit.clearFlag(8 | 16); }, 0},
        {"same list",
         [&] {
             edit.setSubColors({red, blue});
         },
         0},
        {"own list, cut",
         [&] {
             edit.setSubColors({edit.subColors().data() + 1, 1});
         },
         1},
        {"other list",
         [&] {
             edit.setSubColors({blue, red});
         },
         1},
        {"same active", [&] { edit.setActiveSub(red); }, 0},
        {"other active", [&] { edit.setActiveSub(blue); }, 1},
        {"replace by a listed one", [&] { edit.replaceSubColor(red, blue); }, 0},
        {"replace an inactive one", [&] { edit.replaceSubColor(red, ColorId(77)); }, 1},
        {"replace the active one", [&] { edit.replaceSubColor(blue, ColorId(78)); }, 2},
        {"no multi-colour", [&] { edit.clearFlag(ColorFlags::MultiColor); }, 1},
        {"replace in a plain one", [&] { edit.replaceSubColor(ColorId(78), blue); }, 0},
    };
    for (auto const& row : rows) {
        unsigned const before = edit.revision();
        edit.commit(true);
        row.set();
        EXPECT_EQ(edit.revision() - before, row.changes) << row.what;
        EXPECT_EQ(edit.isModified(), row.changes != 0) << row.what;
    }
    EXPECT_EQ(edit.subColors()[0], ColorId(78));
    EXPECT_EQ(edit.activeSub(), ColorId(78));
    EXPECT_FALSE(edit.hasSubColor(ColorId(77))); // listed, but no multi-colour any more
    edit.setFlag(ColorFlags::MultiColor);
    EXPECT_TRUE(edit.hasSubColor(ColorId(77)));
}

TEST_F(ZColorExtEditTest, MissingParametersReadAsDefaultsAndAreNotSet) {
    for (int missing = 0; missing < 7; ++missing) {
        SCOPED_TRACE(missing);
        nyxParameter_edit* const block = api.color_params(multi);
        block->entries[missing].name[0] = '_';
        ZColorExtEdit edit(&api, block);
        EXPECT_EQ(edit.id(), missing == 0 ? ColorId() : multi);
        EXPECT_EQ(edit.displayName(), missing == 1 ? "" : "Multi");
        EXPECT_EQ(edit.hasFlag(ColorFlags::MultiColor), missing != 4);
        EXPECT_EQ(edit.subColors().size(), missing == 5 ? 0u : 2u);
        EXPECT_EQ(edit.activeSub(), missing == 6 ? ColorId() : red);
        edit.setColor({1, 2, 3, 4});
        edit.setDisplayName("New");
        edit.setFlag(8);
        edit.setSubColors({});
        edit.setActiveSub(blue);
        EXPECT_EQ(edit.revision(), missing == 0 || missing == 2 ? 5u : 4u);
        EXPECT_EQ(edit.color().r + edit.color().a, missing == 3 ? 1 : 5);
    }
}

TEST_F(ZColorExtEditTest, CopiesAreWrittenToTheirOwnRecordAndCommitsOnlyWhenChanged) {
    ZColorExtEdit edit(&api, api.color_params(red));
    EXPECT_FALSE(edit.commit(false));
    edit.setColor({0.25f, 0, 0, 1});
    auto const copy = edit.copyFor(blue);
    EXPECT_EQ(copy->id(), blue);
    EXPECT_EQ(calls([&] { EXPECT_TRUE(copy->commit(false) && !copy->commit(false)); }),
              "commit_color_params 2");
    EXPECT_EQ(copy->revision(), 1u);
    EXPECT_TRUE(edit.isModified());
    EXPECT_EQ(db->getColorParameters(red)->color().r, 1);
    EXPECT_EQ(db->getColorParameters(blue)->color().r, 0.25f);

    renderer.faults().noScene = true; // nobody to own a text
    edit.setDisplayName("Lost");
    EXPECT_EQ(edit.displayName(), "Red");
}

TEST_F(ZColorExtEditTest, ABlockOfAnotherKindIsLeftAlone) {
    nyxParameter_edit* const colorBlock = api.color_params(multi);
    nyxParameter_edit* const settingsBlock = api.color_settings_params();
    {
        ZColorExtEdit edit(&api, settingsBlock);
        edit.replaceSubColor(red, ColorId(9));
        EXPECT_FALSE(edit.commit(true) || edit.copyFor(red)->commit(true) || edit.id().isValid());
        EXPECT_EQ(edit.color().a, 1);
        ZColorSettingsEdit settings(&api, colorBlock);
        settings.setActiveColorwayId(nyx::ColorwayId(1));
        EXPECT_FALSE(settings.commit(true) || settings.activeColorwayId().isValid());
        ZColorwayEdit colorway(&api, colorBlock);
        EXPECT_FALSE(colorway.isModified() || colorway.commit(true));
    }
    EXPECT_EQ(renderer.ledger().blocks, 2u);
    api.release_color_params(colorBlock);
    api.release_color_settings_params(settingsBlock);
}
