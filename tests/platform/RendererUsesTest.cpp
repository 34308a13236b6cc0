#include "support/TestScene.h"

#include "nyxrender/nyxScene.h"
#include "nyxrender/nyxScene_api.h"
#include "nyxrender/nyx_color.h"
#include "nyxrender/nyx_memory.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstring>
#include <random>
#include <set>
#include <vector>

using nyx::ColorId;
using nyx::MaterialId;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class RendererUses : public TestScene {
protected:
    unsigned count(ColorId id) { return nyx_color_reference_count(scene(), id); }
    auto users(ColorId id, unsigned how, bool unassigned = true) {
        return nyx_get_materials_using_color(scene(), id, how, unassigned);
    }

    void setSubColors(ColorId id, std::vector<ColorId> const& ids, std::uint32_t flags = 1) {
        nyxParameter_edit* const block = api()->color_params(id);
        findEntry(*block, "flags")->value.word = flags;
        nyxParameter_value& value = findEntry(*block, "sub_colors")->value;
        nyx_free_aligned(value.list.ids);
        std::size_t const bytes = ids.size() * sizeof(ColorId);
        value.list = {static_cast<ColorId*>(nyx_malloc_aligned(bytes, 32)),
                      static_cast<std::int32_t>(ids.size())};
        if (bytes != 0) {
            std::memcpy(static_cast<void*>(value.list.ids), ids.data(), bytes);
        }
        api()->commit_color_params(block);
        api()->release_color_params(block);
    }
};

} // namespace

TEST_F(RendererUses, PlacesCountDirectlyAndThroughEveryMultiColorThatListsAColor) {
    SmallScene const made = addSmallScene();
    EXPECT_EQ(count(made.red), 2u) << "its own place and cover's";
    EXPECT_EQ(count(made.green), 1u) << "cover's, though another is active";
    EXPECT_EQ(count(made.cover), 1u);
    EXPECT_EQ(count(ColorId(99)), 0u);
    EXPECT_EQ(count(ColorId()), 0u);
    EXPECT_THAT(users(made.red, 3), ElementsAre(made.fabric)) << "once, by both ways";
    EXPECT_THAT(users(made.green, 1), IsEmpty());
    EXPECT_THAT(users(made.green, 2), ElementsAre(made.fabric));
    EXPECT_THAT(users(made.blue, 1), ElementsAre(made.frame));
    EXPECT_THAT(users(made.blue, 1, false), IsEmpty()) << "no object uses frame";

    setSubColors(made.cover, {made.blue, made.blue, made.cover});
    EXPECT_EQ(count(made.blue), 2u) << "listed twice counts once";
    EXPECT_EQ(count(made.red), 1u);
    EXPECT_EQ(count(made.cover), 1u) << "listing itself adds nothing";
    EXPECT_THAT(users(made.blue, 3), ElementsAre(made.fabric, made.frame));
    ColorId const outer = renderer.addMultiColor("Outer", {made.cover}, made.cover);
    renderer.bindColor(made.frame, 5, "rim", outer);
    EXPECT_EQ(count(made.cover), 2u);
    EXPECT_EQ(count(made.blue), 2u) << "one level only";

    renderer.bindColor(made.fabric, 1, "color", made.green); // bound anew
    EXPECT_EQ(count(made.blue), 1u);
    EXPECT_EQ(count(made.green), 1u);
    renderer.bindColor(made.fabric, 1, "color", made.cover);
    setSubColors(made.cover, {made.blue}, 0);
    EXPECT_EQ(count(made.blue), 1u) << "without flag 1 a list means nothing";
    setSubColors(made.cover, {made.blue}, 1);
    renderer.removeColor(made.cover);
    EXPECT_EQ(count(made.blue), 1u);
    EXPECT_EQ(count(made.cover), 0u) << "the place still names it, but it is gone";
    EXPECT_THAT(users(made.cover, 1), IsEmpty());
}

TEST_F(RendererUses, WithoutASceneEverythingAnswersNothing) {
    renderer.faults().noScene = true;
    nyxScene* const none = api()->scene();
    ASSERT_EQ(none, nullptr);
    unsigned revision = 7;
    nyx_get_colordb_revision(none, revision, revision);
    EXPECT_EQ(revision, 7u);
    EXPECT_THAT(nyx_get_colors(none, nyxColor_extended::PlainColor), IsEmpty());
    EXPECT_THAT(nyx_get_colors_named(none), IsEmpty());
    EXPECT_THAT(nyx_color_from_name(none, "Red"), IsEmpty());
    EXPECT_THAT(nyx_colorway_from_name(none, "Red"), IsEmpty());
    EXPECT_EQ(nyx_color_reference_count(none, ColorId(1)), 0u);
    nyx_color_set_unique_name(none, ColorId(1));
    EXPECT_EQ(nyx_color_find_unique_name(none, "Red", {}, nyxColor_extended::PlainColor), nullptr);
    EXPECT_THAT(nyx_get_materials_using_color(none, ColorId(1), 3, true), IsEmpty());
    EXPECT_EQ(nyx_get_scene_api(none), nullptr);
}

namespace {

/// The same answers, searched for in the whole scene.
class BruteForce {
public:
    explicit BruteForce(nyx::embedded::Renderer const& renderer) {
        for (ColorId const id : renderer.colors()) {
            colors_.push_back(*renderer.color(id));
        }
        for (MaterialId const id : renderer.materials()) {
            materials_.push_back(*renderer.material(id));
        }
    }

    [[nodiscard]] bool uses(ColorId bound, ColorId color, unsigned how) const {
        if (bound == color) {
            return (how & 1) != 0;
        }
        return (how & 2) != 0 && std::any_of(colors_.begin(), colors_.end(), [&](auto const& c) {
                   return c.id == bound && (c.flags & 1) != 0 &&
                          std::find(c.subColors.begin(), c.subColors.end(), color) !=
                              c.subColors.end();
               });
    }
    [[nodiscard]] unsigned count(ColorId color) const {
        unsigned places = 0;
        for (auto const& material : materials_) {
            for (auto const& place : material.places) {
                places += uses(place.color, color, 3) ? 1u : 0u;
            }
        }
        return places;
    }
    [[nodiscard]] std::vector<MaterialId> users(ColorId color, unsigned how, bool all) const {
        std::vector<MaterialId> ids;
        for (auto const& material : materials_) {
            bool const used =
                std::any_of(material.places.begin(), material.places.end(),
                            [&](auto const& place) { return uses(place.color, color, how); });
            if (used && (all || material.inUse)) {
                ids.push_back(material.id);
            }
        }
        return ids;
    }
    [[nodiscard]] std::vector<ColorId> listed(std::string const* name, std::uint32_t multi) const {
        std::vector<ColorId> ids;
        for (auto const& color : colors_) {
            if ((color.flags & 4) == 0 && (color.flags & 1) == multi &&
                (name == nullptr || color.name == *name)) {
                ids.push_back(color.id);
            }
        }
        return ids;
    }
    [[nodiscard]] std::string unique(std::string const& base, ColorId ignored) const {
        std::set<std::string> taken;
        for (auto const& color : colors_) {
            if ((color.flags & 4) == 0 && color.id != ignored) {
                taken.insert(color.name);
            }
        }
        std::string name = base;
        for (int n = 1; taken.contains(name); ++n) {
            name = base + ' ' + std::to_string(n);
        }
        return name;
    }

private:
    std::vector<nyx::embedded::ColorInfo> colors_;
    std::vector<nyx::embedded::MaterialInfo> materials_;
};

} // namespace

TEST_F(RendererUses, IndexesAgreeWithASearchAfterRandomEdits) {
    std::mt19937 random(20240617);
    auto const below = [&](unsigned n) { return static_cast<std::uint32_t>(random() % n); };
    std::uint32_t newest = 0;
    // Of the newest forty and the next three: some are gone, some are not there yet.
    auto const anyColor = [&] {
        std::uint32_t const back = below(40);
        return ColorId(newest > back ? newest + 3 - back : 1 + back);
    };
    for (int i = 0; i < 6; ++i) {
        MaterialId const id = renderer.addMaterial("M");
        if (i % 2 == 0) {
            renderer.addObject("O", {}, id);
        }
    }
    unsigned lastRevision = 0;
    std::vector<ColorId> lastPlain;
    for (int step = 0; step < 1500; ++step) {
        ColorId const id = anyColor();
        nyxScene_api* const make = nyx_get_scene_api(scene());
        switch (below(7)) {
        case 0:
            make->begin_color();
            make->set_param("display_name", nyxScene_api::TypeText, below(2) != 0 ? "A" : "A 3");
            if (nyxColor_record* const record = make->end_color()) {
                record->flags = below(5);
                newest = record->id.toUint();
            }
            break;
        case 1:
            renderer.removeColor(below(2) == 0 ? id : ColorId());
            break;
        case 2:
            nyx_color_set_unique_name(scene(), id);
            break;
        case 3:
            if (renderer.color(id)) {
                setSubColors(id, {anyColor(), anyColor(), anyColor()}, below(8));
            }
            break;
        default:
            renderer.bindColor(MaterialId(1 + below(6)), below(4), "color", anyColor());
        }

        BruteForce const expected(renderer);
        unsigned revision = 0;
        unsigned ignored = 0;
        nyx_get_colordb_revision(scene(), revision, ignored);
        auto const plain = nyx_get_colors(scene(), nyxColor_extended::PlainColor);
        ASSERT_THAT(plain, testing::ElementsAreArray(expected.listed(nullptr, 0)));
        if (revision == lastRevision) {
            ASSERT_THAT(plain, testing::ElementsAreArray(lastPlain)) << "a list changed silently";
        }
        lastRevision = revision;
        lastPlain.assign(plain.begin(), plain.end());

        ColorId const asked = anyColor();
        bool const exists = renderer.color(asked).has_value();
        unsigned const how = below(4);
        bool const all = below(2) != 0;
        ASSERT_EQ(count(asked), exists ? expected.count(asked) : 0) << "step " << step;
        ASSERT_THAT(users(asked, how, all),
                    testing::ElementsAreArray(exists ? expected.users(asked, how, all)
                                                     : std::vector<MaterialId>()));
        std::string const name = "A " + std::to_string(below(5));
        ASSERT_THAT(nyx_color_from_name(scene(), name.c_str()),
                    testing::ElementsAreArray(expected.listed(&name, 0)));
        char* const unique =
            nyx_color_find_unique_name(scene(), "A", {asked}, nyxColor_extended::PlainColor);
        ASSERT_EQ(unique, expected.unique("A", asked)) << "step " << step;
        nyx_free(unique);
    }
}
