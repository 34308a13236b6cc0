#include "support/TestScene.h"

#include "nyxrender/nyxScene.h"
#include "nyxrender/nyxScene_api.h"
#include "nyxrender/nyx_color.h"
#include "nyxrender/nyx_memory.h"

#include <gmock/gmock.h>

#include <utility>
#include <vector>

using nyx::ColorId;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class RendererColors : public TestScene {
protected:
    /// As the library does it: name, end, flags written into the record.
    ColorId create(char const* name, std::uint32_t flags = 0) {
        nyxScene_api* const make = nyx_get_scene_api(scene());
        make->begin_color();
        if (*name != '\0') {
            make->set_param("display_name", nyxScene_api::TypeText, name);
        }
        nyxColor_record* const record = make->end_color();
        if (record == nullptr) {
            return {};
        }
        record->flags |= flags;
        return record->id;
    }

    std::string uniqueName(char const* name, nyx::Span<ColorId> ignored = {}) {
        char* const text =
            nyx_color_find_unique_name(scene(), name, ignored, nyxColor_extended::PlainColor);
        std::string const result = text == nullptr ? "(null)" : text;
        nyx_free(text);
        return result;
    }

    std::pair<unsigned, unsigned> revisions() {
        std::pair<unsigned, unsigned> both{0, 0};
        nyx_get_colordb_revision(scene(), both.first, both.second);
        return both;
    }

    /// What one call does to the two counters.
    template <class Call>
    std::pair<unsigned, unsigned> rise(Call call) {
        auto const before = revisions();
        call();
        auto const after = revisions();
        return {after.first - before.first, after.second - before.second};
    }

    void rename(ColorId id, char const* name) {
        nyxParameter_edit* const block = api()->color_params(id);
        findEntry(*block, "display_name")->value.text = nyx_string_dup(*scene(), name);
        api()->commit_color_params(block);
        api()->release_color_params(block);
    }

    void setFlags(ColorId id, std::uint32_t flags) {
        nyxParameter_edit* const block = api()->color_params(id);
        findEntry(*block, "flags")->value.word = flags;
        api()->commit_color_params(block);
        api()->release_color_params(block);
    }
};

} // namespace

TEST_F(RendererColors, UniqueNamesSplitTheNumberOffAndTakeTheSmallestFreeOne) {
    struct Row {
        std::vector<char const*> taken;
        char const* asked;
        char const* unique;
    };
    Row const rows[] = {
        {{}, "Red", "Red"},
        {{"Red"}, "red", "red"},
        {{"Red"}, "Red", "Red 1"},
        {{"Red", "Red 1", "Red 3"}, "Red", "Red 2"},
        {{"Red", "Red 1", "Red 2"}, "Red 2", "Red 3"},
        {{"Red 7"}, "Red 7", "Red 1"},
        {{"Red 1", "Red 1 1"}, "Red 1 1", "Red 1 2"},
        {{"Red 007"}, "Red 007", "Red 1"},
        {{"Red", "Red 01"}, "Red", "Red 1"},
        {{"Red7"}, "Red7", "Red7 1"},
        {{"42"}, "42", "42 1"},
        {{" 42"}, " 42", " 42 1"},
        {{"Red "}, "Red ", "Red  1"},
        {{"Red 99999999999"}, "Red 99999999999", "Red 99999999999 1"},
        {{"Red", "Red 2147483647"}, "Red 2147483647", "Red 1"},
        {{"R\xc3\xb6t 1"}, "R\xc3\xb6t 1", "R\xc3\xb6t 2"},
        {{"Red"}, "", ""},
    };
    for (Row const& row : rows) {
        std::vector<ColorId> made;
        for (char const* const name : row.taken) {
            made.push_back(create(name));
        }
        EXPECT_EQ(uniqueName(row.asked), row.unique);
        EXPECT_EQ(uniqueName(row.asked, made), row.asked) << "none of them counts";
        for (ColorId const id : made) {
            renderer.removeColor(id);
        }
    }
}

TEST_F(RendererColors, IgnoredColorsFreeTheirNumbersAndRenamedOnesToo) {
    ColorId const red = create("Red");
    ColorId const one = create("Red 1");
    ColorId const two = create("Red 2");
    ColorId const twin = create("Red 1");
    EXPECT_EQ(uniqueName("Red", {one}), "Red 3") << "its twin still holds Red 1";
    EXPECT_EQ(uniqueName("Red", {two}), "Red 2");
    EXPECT_EQ(uniqueName("Red", {one, twin, ColorId(99), ColorId()}), "Red 1");

    nyx_color_set_unique_name(scene(), twin);
    EXPECT_EQ(renderer.color(twin)->name, "Red 3");
    nyx_color_set_unique_name(scene(), red);
    EXPECT_EQ(renderer.color(red)->name, "Red") << "already unique";
    rename(one, "Other");
    EXPECT_EQ(uniqueName("Red"), "Red 1");

    ColorId const unnamed = create("");
    nyx_color_set_unique_name(scene(), unnamed);
    EXPECT_EQ(renderer.color(unnamed)->name, "");
    nyx_color_set_unique_name(scene(), ColorId(99));
    EXPECT_EQ(renderer.addMultiColor("Other", {}, {}), ColorId(6));
    EXPECT_EQ(renderer.color(ColorId(6))->name, "Other 1") << "plain and multi share their names";
    renderer.faults().noUniqueNames = true;
    EXPECT_EQ(uniqueName("Red"), "(null)");
}

TEST_F(RendererColors, ListsFollowFlagsThatAreWrittenIntoTheNewRecord) {
    ColorId const plain = create("Sand");
    ColorId const multi = create("Cover", 1);
    ColorId const unnamed = create("");
    ColorId const temporary = create("Sand", 4);
    EXPECT_THAT(nyx_get_colors(scene(), nyxColor_extended::PlainColor),
                ElementsAre(plain, unnamed));
    EXPECT_THAT(nyx_get_colors(scene(), nyxColor_extended::MultiColor), ElementsAre(multi));
    EXPECT_THAT(nyx_get_colors_named(scene()), ElementsAre(plain, multi));
    EXPECT_THAT(nyx_color_from_name(scene(), "Sand"), ElementsAre(plain));
    EXPECT_THAT(nyx_color_from_name(scene(), "Cover"), IsEmpty());
    EXPECT_THAT(nyx_multi_color_from_name(scene(), "Cover"), ElementsAre(multi));
    EXPECT_EQ(uniqueName("Sand", {plain}), "Sand") << "a preview takes no name away";

    nyx_get_scene_api(scene())->begin_color();
    nyxColor_record* const lent = nyx_get_scene_api(scene())->end_color();
    rename(lent->id, "Clay");
    for (std::uint32_t const flags : {4u, 0u, 4u}) {
        lent->flags = flags;
        EXPECT_EQ(uniqueName("Clay"), flags == 4 ? "Clay" : "Clay 1");
    }
    EXPECT_TRUE(renderer.removeColor(lent->id));

    setFlags(temporary, 0);
    EXPECT_EQ(uniqueName("Sand", {plain}), "Sand 1");
    EXPECT_THAT(nyx_color_from_name(scene(), "Sand"), ElementsAre(plain, temporary));

    // Ids are never used again, and what is gone answers nothing.
    EXPECT_TRUE(renderer.removeColor(temporary));
    EXPECT_FALSE(renderer.removeColor(temporary));
    EXPECT_EQ(api()->color_params(temporary), nullptr);
    EXPECT_EQ(create("New"), ColorId(6));
}

TEST_F(RendererColors, RevisionsRiseWithListsAndNamesButNotWithValues) {
    using Rise = std::pair<unsigned, unsigned>;
    EXPECT_EQ(revisions(), Rise(1, 1));
    ColorId red;
    nyxScene_api* const make = nyx_get_scene_api(scene());
    EXPECT_EQ(rise([&] { red = create("Red"); }), Rise(1, 0));
    make->begin_color();
    nyxColor_record* const record = make->end_color();
    auto const created = revisions();
    record->flags = 4; // without any call
    EXPECT_EQ(revisions(), Rise(created.first + 1, created.second));
    EXPECT_EQ(revisions(), Rise(created.first + 1, created.second)) << "noticed once";

    EXPECT_EQ(rise([&] { rename(red, "Rust"); }), Rise(1, 0));
    EXPECT_EQ(rise([&] { rename(red, "Rust"); }), Rise(0, 0));
    EXPECT_EQ(rise([&] { setFlags(red, 1); }), Rise(1, 0));
    EXPECT_EQ(rise([&] { renderer.changeColor(red, {0, 1, 0, 1}); }), Rise(0, 0));
    EXPECT_EQ(rise([&] { renderer.removeColor(red); }), Rise(1, 0)) << "a list got shorter";

    EXPECT_EQ(rise([&] {
                  make->begin_colorway();
                  make->end_colorway();
              }),
              Rise(0, 1));
    nyx::ColorwayId const colorway = renderer.colorways().front();
    EXPECT_EQ(rise([&] { renderer.activateColorway(colorway); }), Rise(0, 1));
    EXPECT_EQ(rise([&] { renderer.activateColorway(colorway); }), Rise(0, 0));
    EXPECT_EQ(rise([&] { renderer.removeColorway(colorway); }), Rise(0, 1));
    EXPECT_EQ(rise([&] { ASSERT_EQ(renderer.loadSceneText(renderer.saveSceneText()), ""); }),
              Rise(1, 1));
}

TEST_F(RendererColors, CreationNeedsMatchingCallsAndFailsOnDemand) {
    nyxScene_api* const make = nyx_get_scene_api(scene());
    EXPECT_EQ(make->end_color(), nullptr);
    EXPECT_EQ(make->end_colorway(), nullptr);
    make->begin_color();
    EXPECT_EQ(make->end_colorway(), nullptr);
    EXPECT_EQ(make->end_color(), nullptr) << "dropped by the wrong end";

    renderer.faults().failCreations = 2;
    EXPECT_FALSE(create("Red").isValid());
    make->begin_colorway();
    EXPECT_EQ(make->end_colorway(), nullptr);
    make->begin_color();
    make->set_param("display_name", nyxScene_api::TypeText, "Blue");
    make->set_param("original_name", nyxScene_api::TypeText, "Azure");
    make->set_param("color", nyxScene_api::TypeColor, nyxColor{0, 0.25f, 1});
    make->set_param("weight", nyxScene_api::TypeFloat, 1.0f);
    make->set_param("display_name", nyxScene_api::TypeFloat, "not a text");
    ColorId const blue = make->end_color()->id;
    EXPECT_EQ(blue, ColorId(1)) << "a failed creation takes no id";
    EXPECT_EQ(renderer.color(blue)->name, "Blue");
    EXPECT_EQ(renderer.color(blue)->value.g, 0.25f);
    make->begin_colorway();
    make->set_param("display_name", nyxScene_api::TypeText, "Summer");
    nyx::ColorwayId const summer = *make->end_colorway();
    EXPECT_THAT(nyx_colorway_from_name(scene(), "Summer"), ElementsAre(summer));
    EXPECT_THAT(nyx_get_colorways(scene()), ElementsAre(summer));
    EXPECT_THAT(nyx_colorway_from_name(scene(), ""), IsEmpty());
}
