#include "support/TestScene.h"

#include "nyxrender/nyxScene.h"
#include "nyxrender/nyxScene_api.h"
#include "nyxrender/nyx_color.h"
#include "nyxrender/nyx_memory.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <functional>
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
        make->set_param("display_name", nyxScene_api::TypeText, name);
        nyxColor_record* const record = make->end_color();
        if (!record) {
            return {};
        }
        record->flags |= flags;
        return record->id;
    }

    std::string uniqueName(char const* name, nyx::Span<ColorId> ignored = {}) {
        char* const text =
            nyx_color_find_unique_name(scene(), name, ignored, nyxColor_extended::PlainColor);
        std::string const result = text ? text : "(null)";
        EXPECT_EQ(renderer.ledger().texts, text ? 1u : 0u);
        nyx_free(text);
        return result;
    }

    std::pair<unsigned, unsigned> revisions() {
        std::pair<unsigned, unsigned> both{0, 0};
        nyx_get_colordb_revision(scene(), both.first, both.second);
        return both;
    }

    void rename(ColorId id, char const* name) {
        char* const text = nyx_string_dup(*scene(), name);
        edit(id, [text](nyxParameter_edit& block) { value(block, "display_name").text = text; });
    }

    void setFlags(ColorId id, std::uint32_t flags) {
        edit(id, [flags](nyxParameter_edit& block) { value(block, "flags").word = flags; });
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
        {{"Red", "Red 1", "Red 3"}, "Red", "Red 2"},
        {{"Red", "Red 1", "Red 2"}, "Red 2", "Red 3"},
        {{"Red 7"}, "Red 7", "Red 1"},
        {{"Red 1", "Red 1 1"}, "Red 1 1", "Red 1 2"},
        {{"Red 007"}, "Red 007", "Red 1"},
        {{"Red", "Red 01"}, "Red", "Red 1"}, // which is another name
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
        std::ranges::reverse(made);
        EXPECT_EQ(uniqueName(row.asked, made), row.asked) << "in whatever order";
        for (ColorId const id : made) {
            renderer.colors().remove(id);
        }
    }
}

TEST_F(RendererColors, PlainAndMultiColorsShareNames) {
    create("Red");
    ColorId const second = create("Red");
    nyx_color_set_unique_name(scene(), second);
    nyx_color_set_unique_name(scene(), ColorId(99));
    EXPECT_EQ(renderer.colors().record(second)->name, "Red 1");
    ColorId const multi = renderer.colors().addMulti("Red", {}, {});
    EXPECT_EQ(renderer.colors().record(multi)->name, "Red 2");
    renderer.faults().noUniqueNames = true;
    EXPECT_EQ(uniqueName("Red"), "(null)");
}

TEST_F(RendererColors, ListsFollowFlagsThatAreWrittenIntoTheNewRecord) {
    ColorId const plain = create("Sand");
    ColorId const multi = create("Cover", 1);
    ColorId const unnamed = create("");
    ColorId const temporary = create("Sand", 4);
    EXPECT_THAT(nyx_get_colors_named(scene()), ElementsAre(plain, multi));
    EXPECT_THAT(nyx_get_colors(scene(), nyxColor_extended::PlainColor),
                ElementsAre(plain, unnamed));
    EXPECT_THAT(nyx_color_from_name(scene(), "Cover"), IsEmpty());
    EXPECT_EQ(uniqueName("Sand", {plain}), "Sand") << "a preview takes no name away";

    nyx_get_scene_api(scene())->begin_color();
    nyxColor_record* const lent = nyx_get_scene_api(scene())->end_color();
    rename(lent->id, "Clay");
    for (std::uint32_t const flags : {4u, 0u, 4u}) {
        lent->flags = flags;
        EXPECT_EQ(uniqueName("Clay"), flags == 4 ? "Clay" : "Clay 1");
    }
    EXPECT_TRUE(renderer.colors().remove(lent->id));

    setFlags(temporary, 0);
    EXPECT_THAT(nyx_color_from_name(scene(), "Sand"), ElementsAre(plain, temporary));
    EXPECT_TRUE(renderer.colors().remove(temporary));
    EXPECT_FALSE(renderer.colors().remove(temporary));
    EXPECT_EQ(api()->color_params(temporary), nullptr);
    EXPECT_EQ(create("New"), ColorId(6)) << "ids are never used again";
}

TEST_F(RendererColors, RevisionsRiseWithListsAndNamesButNotWithValues) {
    ColorId red;
    nyxColor_record* record = nullptr;
    nyx::ColorwayId way;
    nyxScene_api* const make = nyx_get_scene_api(scene());
    struct Step {
        char const* what;
        std::function<void()> call;
        unsigned colors, colorways; // by how much the counters rise
    };
    Step const steps[] = {
        {"created", [&] { red = create("Red"); }, 1, 0},
        {"begun", [&] { make->begin_color(); }, 0, 0},
        {"ended", [&] { record = make->end_color(); }, 1, 0},
        {"flags, without any call", [&] { record->flags = 4; }, 1, 0},
        {"noticed once", [] {}, 0, 0},
        {"name", [&] { rename(red, "Rust"); }, 1, 0},
        {"same name", [&] { rename(red, "Rust"); }, 0, 0},
        {"flags", [&] { setFlags(red, 1); }, 1, 0},
        {"value", [&] { renderer.colors().change(red, nyxColor_rgba()); }, 0, 0},
        {"removed", [&] { renderer.colors().remove(red); }, 1, 0},
        {"colorway begun", [&] { make->begin_colorway(); }, 0, 0},
        {"colorway ended", [&] { way = *make->end_colorway(); }, 0, 1},
        {"activated", [&] { renderer.colorways().activate(way); }, 0, 1},
        {"again", [&] { renderer.colorways().activate(way); }, 0, 0},
        {"colorway removed", [&] { renderer.colorways().remove(way); }, 0, 1},
        {"loaded", [&] { EXPECT_EQ(renderer.loadSceneText(renderer.saveSceneText()), ""); }, 1, 1},
    };
    unsigned colors = 1;
    unsigned colorways = 1;
    for (Step const& step : steps) {
        step.call();
        colors += step.colors;
        colorways += step.colorways;
        EXPECT_EQ(revisions(), std::pair(colors, colorways)) << step.what;
    }
}

TEST_F(RendererColors, CreationNeedsMatchingCallsAndFailsOnDemand) {
    nyxScene_api* const make = nyx_get_scene_api(scene());
    EXPECT_EQ(make->end_color(), nullptr);
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
    EXPECT_EQ(make->end_color()->id, ColorId(1)) << "a failed creation takes no id";
    make->begin_color();
    make->end_color();
    EXPECT_THAT(renderer.dump(),
                testing::HasSubstr("color 1 \"Blue\" 0 0.25 1 1 original \"Azure\"\n"
                                   "color 2 \"\" 0 0 0 1\n"));
    make->begin_colorway();
    make->set_param("display_name", nyxScene_api::TypeText, "Summer");
    nyx::ColorwayId const summer = *make->end_colorway();
    EXPECT_THAT(nyx_colorway_from_name(scene(), "Summer"), ElementsAre(summer));
    EXPECT_THAT(nyx_get_colorways(scene()), ElementsAre(summer));
    EXPECT_THAT(nyx_colorway_from_name(scene(), ""), IsEmpty());
}
