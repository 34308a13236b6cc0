#include "support/TestScene.h"

#include "nyxrender/nyxScene.h"
#include "nyxrender/nyxScene_api.h"
#include "nyxrender/nyx_color.h"
#include "nyxrender/nyx_memory.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <random>
#include <utility>
#include <vector>

using nyx::ColorId;
using nyx::MaterialId;
using nyx::embedded::ColorRecord;
using testing::ElementsAreArray;
using testing::IsEmpty;

namespace {

class RendererUses : public TestScene {
protected:
    unsigned count(ColorId id) { return nyx_color_reference_count(scene(), id); }
    auto users(ColorId id, unsigned how, bool unassigned = true) {
        return nyx_get_materials_using_color(scene(), id, how, unassigned);
    }

    void setSubColors(ColorId id, std::vector<ColorId> const& ids, std::uint32_t flags = 1) {
        edit(id, [&](nyxParameter_edit& block) {
            value(block, "flags").word = flags;
            setList(value(block, "sub_colors"), ids);
        });
    }
};

} // namespace

TEST_F(RendererUses, WithoutASceneEverythingAnswersNothing) {
    renderer.faults().noScene = true;
    nyxScene* const none = api()->scene();
    ASSERT_EQ(none, nullptr);
    unsigned revision = 7;
    nyx_get_colordb_revision(none, revision, revision);
    EXPECT_EQ(revision, 7u);
    for (auto const& list :
         {nyx_get_colors(none, nyxColor_extended::PlainColor), nyx_get_colors_named(none),
          nyx_color_from_name(none, "Red"), nyx_multi_color_from_name(none, "Red")}) {
        EXPECT_TRUE(list.empty());
    }
    EXPECT_TRUE(nyx_get_colorways(none).empty() && nyx_colorway_from_name(none, "Red").empty());
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
    explicit BruteForce(nyx::embedded::Renderer const& renderer)
        : materialsOf_(renderer.materials()) {
        for (ColorId const id : renderer.colors().ids()) {
            colors_.push_back(*renderer.colors().record(id));
        }
        for (MaterialId const id : renderer.materials().ids()) {
            materials_.push_back(*renderer.materials().record(id));
        }
    }

    [[nodiscard]] bool uses(ColorId bound, ColorId color, unsigned how) const {
        return std::ranges::any_of(colors_, [&](auto const& c) {
            bool const isListed = (c.flags & 1) != 0 && std::ranges::count(c.subColors, color) != 0;
            return c.id == bound && (how & (bound == color ? 1 : isListed ? 2 : 0)) != 0;
        });
    }
    /// For each place that uses the colour its material.
    [[nodiscard]] std::vector<MaterialId> places(ColorId color, unsigned how, bool all) const {
        std::vector<MaterialId> ids;
        for (auto const& material : materials_) {
            for (auto const& place : material.places) {
                if ((all || materialsOf_.isUsed(material.id)) && uses(place.color, color, how)) {
                    ids.push_back(material.id);
                }
            }
        }
        return std::ranges::count(colors_, color, &ColorRecord::id) != 0
                   ? ids
                   : std::vector<MaterialId>();
    }
    [[nodiscard]] std::vector<MaterialId> users(ColorId color, unsigned how, bool all) const {
        std::vector<MaterialId> ids = places(color, how, all);
        ids.erase(std::unique(ids.begin(), ids.end()), ids.end());
        return ids;
    }
    [[nodiscard]] std::vector<ColorId> listed(std::string const* name, std::uint32_t multi) const {
        std::vector<ColorId> ids;
        for (auto const& color : colors_) {
            if ((color.flags & 5) == multi && (!name || color.name == *name)) {
                ids.push_back(color.id);
            }
        }
        return ids;
    }
    [[nodiscard]] std::string unique(std::string const& base, ColorId ignored) const {
        std::string name = base;
        auto const holds = [&](auto const& c) {
            return (c.flags & 4) == 0 && c.id != ignored && c.name == name;
        };
        for (int n = 1; std::ranges::any_of(colors_, holds); ++n) {
            name = base + ' ' + std::to_string(n);
        }
        return name;
    }

private:
    std::vector<ColorRecord> colors_;
    std::vector<nyx::embedded::MaterialRecord> materials_;
    nyx::embedded::Materials const& materialsOf_;
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
        MaterialId const id = renderer.materials().add("M");
        renderer.items().addObject("O", {}, i % 2 == 0 ? id : MaterialId());
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
            renderer.colors().remove(below(2) == 0 ? id : ColorId());
            break;
        case 2:
            nyx_color_set_unique_name(scene(), id);
            break;
        case 3:
            if (renderer.colors().record(id)) {
                setSubColors(id, {anyColor(), anyColor(), anyColor()}, below(8));
            }
            break;
        default:
            renderer.materials().bindColor(MaterialId(1 + below(6)), below(4), "color", anyColor());
        }

        BruteForce const expected(renderer);
        unsigned revision = 0;
        unsigned ignored = 0;
        nyx_get_colordb_revision(scene(), revision, ignored);
        std::vector<ColorId> const plain = expected.listed(nullptr, 0);
        ASSERT_THAT(nyx_get_colors(scene(), nyxColor_extended::PlainColor),
                    ElementsAreArray(plain));
        ASSERT_THAT(nyx_get_colors(scene(), nyxColor_extended::MultiColor),
                    ElementsAreArray(expected.listed(nullptr, 1)));
        ASSERT_TRUE(revision != std::exchange(lastRevision, revision) || plain == lastPlain)
            << "a list changed silently";
        lastPlain = plain;

        ColorId const asked = anyColor();
        unsigned const how = below(4);
        bool const all = below(2) != 0;
        ASSERT_EQ(count(asked), expected.places(asked, 3, true).size()) << "step " << step;
        ASSERT_THAT(users(asked, how, all), ElementsAreArray(expected.users(asked, how, all)));
        std::string const name = "A " + std::to_string(below(5));
        ASSERT_THAT(nyx_color_from_name(scene(), name.c_str()),
                    ElementsAreArray(expected.listed(&name, 0)));
        ASSERT_THAT(nyx_multi_color_from_name(scene(), name.c_str()),
                    ElementsAreArray(expected.listed(&name, 1)));
        char* const unique =
            nyx_color_find_unique_name(scene(), "A", {asked}, nyxColor_extended::PlainColor);
        ASSERT_EQ(unique, expected.unique("A", asked)) << "step " << step;
        nyx_free(unique);
    }
}
