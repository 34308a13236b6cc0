#include "colors/ColorScene.h"

#include "nyxrender/nyxParameter_edit.h"

#include <cstring>
#include <limits>

using namespace zsg;
using nyx::ColorId;

namespace {

class ZColorExtEditTest : public ColorScene {
protected:
    ColorId const red = color("Red", 1);
    ColorId const blue = color("Blue");
    ColorId const multi = multiColor("Multi", {red, blue});

    ZColorExtEdit editOf(ColorId id, char const* missing = "") {
        nyxParameter_edit* const block = renderer.api()->color_params(id);
        for (int i = 0; i < block->count; ++i) {
            if (std::strcmp(block->entries[i].name, missing) == 0) {
                block->entries[i].name[0] = '_';
            }
        }
        return {renderer.api(), block};
    }
};

std::vector<ColorId> list(nyx::Span<ColorId> ids) { return {ids.begin(), ids.end()}; }

} // namespace

TEST_F(ZColorExtEditTest, SettersCountRealChangesOnly) {
    ZColorExtEdit edit = editOf(multi);
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
        {"same name", [&] { edit.setDisplayName("Multi"); }, 0},
        {"same name up to a zero byte", [&] { edit.setDisplayName(std::string("Multi\0x", 7)); },
         0},
        {"no name", [&] { edit.setDisplayName(""); }, 1},
        {"no name again", [&] { edit.setDisplayName(""); }, 0},
        {"a flag beside one that is set", [&] { edit.setFlag(1 | 8); }, 0},
        {"two flags", [&] { edit.setFlag(4 | 8); }, 1},
        {"two flags of which one is set", [&] { edit.clearFlag(8 | 16); }, 1},
        {"a flag that is not set", [&] { edit.clearFlag(8 | 16); }, 0},
        {"same list", [&] { edit.setSubColors(edit.subColors()); }, 0},
        {"own list, cut",
         [&] {
             edit.setSubColors({edit.subColors().data() + 1, 1});
         },
         1},
        {"other order",
         [&] {
             edit.setSubColors({blue, red});
         },
         1},
        {"same active", [&] { edit.setActiveSub(red); }, 0},
        {"other active", [&] { edit.setActiveSub(blue); }, 1},
        {"replace by a listed one", [&] { edit.replaceSubColor(red, blue); }, 0},
        {"replace by nothing", [&] { edit.replaceSubColor(red, ColorId()); }, 0},
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
    EXPECT_EQ(list(edit.subColors()), (std::vector{ColorId(78), ColorId(77)}));
    EXPECT_EQ(edit.activeSub(), ColorId(78));
    EXPECT_FALSE(edit.hasSubColor(ColorId(77))); // listed, but no multi-colour any more
    edit.setFlag(ColorFlags::MultiColor);
    EXPECT_TRUE(edit.hasSubColor(ColorId(77)));
}

TEST_F(ZColorExtEditTest, MissingParametersReadAsDefaultsAndAreNotSet) {
    for (char const* const name :
         {"id", "display_name", "original_name", "color", "flags", "sub_colors", "active_sub"}) {
        SCOPED_TRACE(name);
        auto const is = [&](char const* other) { return std::strcmp(name, other) == 0; };
        ZColorExtEdit edit = editOf(multi, name);
        EXPECT_EQ(edit.id(), is("id") ? ColorId() : multi);
        EXPECT_EQ(edit.displayName(), is("display_name") ? "" : "Multi");
        EXPECT_EQ(edit.hasFlag(ColorFlags::MultiColor), !is("flags"));
        EXPECT_EQ(edit.subColors().size(), is("sub_colors") ? 0u : 2u);
        EXPECT_EQ(edit.activeSub(), is("active_sub") ? ColorId() : red);
        EXPECT_EQ(edit.hasSubColor(red), !is("flags") && !is("sub_colors"));
        edit.setColor({1, 2, 3, 4});
        edit.setDisplayName("New");
        edit.setFlag(8);
        edit.setSubColors({});
        edit.setActiveSub(blue);
        EXPECT_EQ(edit.revision(), is("id") || is("original_name") ? 5u : 4u);
        EXPECT_EQ(edit.color().a, is("color") ? 1 : 4);
        EXPECT_EQ(edit.color().r, is("color") ? 0 : 1);
    }
}

TEST_F(ZColorExtEditTest, CopiesAreWrittenToTheirOwnRecordAndCommitsOnlyWhenChanged) {
    ZColorExtEdit edit = editOf(red);
    EXPECT_FALSE(edit.commit(false));
    EXPECT_TRUE(edit.commit(true));
    edit.setColor({0.25f, 0, 0, 1});
    auto const copy = edit.copyFor(blue);
    EXPECT_EQ(copy->id(), blue);
    EXPECT_EQ(copy->revision(), 1u);
    EXPECT_EQ(trace([&] {
                  EXPECT_TRUE(copy->commit(false));
                  EXPECT_FALSE(copy->commit(false));
              }),
              "\ncommit_color_params 2\n");
    EXPECT_EQ(copy->revision(), 1u);
    EXPECT_TRUE(edit.isModified());
    EXPECT_EQ(editOf(red).color().r, 1);
    EXPECT_EQ(editOf(blue).color().r, 0.25f);

    renderer.faults().noScene = true; // nobody to own a text
    edit.setDisplayName("Lost");
    EXPECT_EQ(edit.displayName(), "Red");
}

TEST_F(ZColorExtEditTest, ABlockOfAnotherKindIsLeftAlone) {
    nyxRT_api& api = *renderer.api();
    nyxParameter_edit* const colorBlock = api.color_params(multi);
    nyxParameter_edit* const settingsBlock = api.color_settings_params();
    {
        ZColorExtEdit wrong(&api, settingsBlock);
        ZColorExtEdit none(&api, nullptr);
        ZColorExtEdit apart(nullptr, nullptr);
        for (ZColorExtEdit* const edit : {&wrong, &none, &apart}) {
            edit->setActiveSub(red);
            edit->setDisplayName("Name");
            edit->replaceSubColor(red, ColorId(9));
            EXPECT_FALSE(edit->commit(true));
            EXPECT_FALSE(edit->copyFor(red)->commit(true));
            EXPECT_FALSE(edit->id().isValid());
            EXPECT_EQ(edit->color().a, 1);
        }
        ZColorSettingsEdit wrongSettings(&api, colorBlock);
        wrongSettings.setActiveColorwayId(nyx::ColorwayId(1));
        EXPECT_FALSE(wrongSettings.isModified() || wrongSettings.commit(true));
        EXPECT_FALSE(wrongSettings.activeColorwayId().isValid());
        ZColorwayEdit wrongColorway(&api, colorBlock);
        wrongColorway.setPairs({red}, {blue});
        EXPECT_FALSE(wrongColorway.isModified() || wrongColorway.commit(true));
    }
    EXPECT_EQ(renderer.ledger().blocks, 2u);
    api.release_color_params(colorBlock);
    api.release_color_settings_params(settingsBlock);
}
