#include "colors/ColorScene.h"

#include <algorithm>

using namespace zsg;
using nyx::ColorId;
using nyx::ColorwayId;

namespace {

class ColorDBTest : public ColorScene {};

std::vector<ColorId> list(nyx::Span<ColorId> ids) { return {ids.begin(), ids.end()}; }

/// Calls every operation with ids that nothing has; nothing may come of it.
void callAll(ColorDB& db, ColorId color, ColorwayId colorway) {
    auto const lock = db.createRtApiLock();
    EXPECT_EQ(db.colorFromName(*lock, "Nobody"), ColorId());
    EXPECT_EQ(db.multiColorFromName(*lock, "Nobody"), ColorId());
    EXPECT_EQ(db.colorwayFromName(*lock, "Nobody"), ColorwayId());
    EXPECT_EQ(db.getColorParameters(color), nullptr);
    EXPECT_EQ(db.getColorwayParameters(colorway), nullptr);
    db.pushColor(color);
    db.setActiveSubColor({color, color});
    EXPECT_EQ(db.colorFromId(color), ZColorExt());
    EXPECT_EQ(db.totalSceneReferenceCount(color), 0u);
    EXPECT_EQ(db.clone(color), ColorId());
    EXPECT_EQ(db.cloneRecursively(color), ColorId());
    EXPECT_EQ(db.multiColorFromColor(color), ColorId());
    db.checkForUnusedMultiColors(colorway);
    db.pushColorway(colorway);
    db.applyColorway(colorway);
    EXPECT_TRUE(db.getMaterialsUsingColor(color, 3, true).empty());
    EXPECT_EQ(db.colorwayName(colorway), "");
    db.handleColorwayActivated(colorway);
    db.setColorEdit(nullptr);
    db.setColorwayEdit(nullptr);
    ZColorExt value;
    value.setId(color);
    if (color.isValid()) {
        db.pushColor(value);
    }
    EXPECT_EQ(value.getId(), color);
}

} // namespace

TEST_F(ColorDBTest, FindsNames) {
    ColorId const unused = color("Red");
    ColorId const used = color("Green");
    use(used);
    ColorId const multi = multiColor("Multi", {unused});
    ColorwayId const colorway = renderer.addColorway("Way", {});
    db->getColorParameters(used)->setDisplayName("Red"); // two of that name
    db->pushColor(used);
    auto const lock = db->createRtApiLock();
    EXPECT_EQ(renderer.ledger().lockDepth, 1);
    EXPECT_EQ(db->colorFromName(*lock, "Red"), used);
    EXPECT_EQ(db->colorFromName(*lock, "Multi"), ColorId());
    EXPECT_EQ(db->multiColorFromName(*lock, "Multi"), multi);
    EXPECT_EQ(db->colorwayFromName(*lock, "Way"), colorway);
    EXPECT_FALSE(db->colorFromName(*lock, "").isValid());
    EXPECT_EQ(db->findUniqueColorName("Red", {}, nyxColor_extended::PlainColor), "Red 1");
    EXPECT_EQ(db->findUniqueColorName("Red", {unused, used}, nyxColor_extended::PlainColor), "Red");
    renderer.faults().noUniqueNames = true;
    EXPECT_EQ(db->findUniqueColorName("Red", {}, nyxColor_extended::PlainColor), std::nullopt);
    EXPECT_FALSE(db->anyMultiColorsInScene());
    use(multi);
    EXPECT_TRUE(db->anyMultiColorsInScene());
    EXPECT_EQ(db->getMaterialsUsingColor(unused, 2, true).size(), 1u);
    EXPECT_EQ(db->getMaterialsUsingColor(unused, 3, false).size(), 0u);
}

TEST_F(ColorDBTest, ListsAreReadAgainWhenTheRevisionHasMoved) {
    ColorId const red = color("Red");
    ColorId const nameless = color("");
    ColorId const multi = multiColor("Multi", {red});
    std::string const asks = "nyx_get_colordb_revision";
    EXPECT_EQ(calls([&] {
                  EXPECT_EQ(list(db->colors()), (std::vector{red, nameless}));
              }),
              asks + ", nyx_get_colors_named, nyx_get_colors 1");
    EXPECT_EQ(calls([&] { EXPECT_EQ(db->colors().size(), 2u); }), asks);
    EXPECT_EQ(calls([&] { EXPECT_EQ(list(db->multiColors()), std::vector{multi}); }),
              asks + ", nyx_get_colors 2");
    EXPECT_EQ(calls([&] { EXPECT_EQ(db->colorways().size(), 0u); }), asks + ", nyx_get_colorways");
    EXPECT_EQ(db->namedColors(), (std::vector{red, multi}));

    db->getColorParameters(red)->setColor({1, 1, 1, 1}); // a value alone moves no list
    db->pushColor(red);
    EXPECT_EQ(calls([&] { EXPECT_EQ(db->multiColors().size(), 1u); }), asks);
    db->getColorParameters(red)->setFlag(ColorFlags::MultiColor);
    db->pushColor(red);
    EXPECT_EQ(list(db->multiColors()), (std::vector{red, multi}));
    renderer.faults().noScene = true;
    EXPECT_TRUE(db->colors().empty() && db->multiColors().empty() && db->colorways().empty());
    renderer.faults().noScene = false;
    EXPECT_EQ(db->colors().size(), 1u);
}

TEST_F(ColorDBTest, BadIdsAndMissingPartsHaveQuietAnswers) {
    color("Red");
    std::string const before = renderer.dump();
    std::string const made = trace([&] {
        callAll(*db, ColorId(), ColorwayId());
        callAll(*db, ColorId(99), ColorwayId(99));
        renderer.faults().noScene = true;
        callAll(*db, ColorId(99), ColorwayId(99));
        EXPECT_EQ(db->createColor("New", nyxColor_extended::MultiColor), ColorId());
        EXPECT_EQ(db->createColorway(), ColorwayId());
        renderer.faults().noScene = false;
    });
    EXPECT_EQ(made.find("commit"), std::string::npos);
    EXPECT_EQ(made.find("begin"), std::string::npos);
    EXPECT_EQ(made.find('>'), std::string::npos);
    EXPECT_EQ(renderer.dump(), before);

    ColorDB nowhere(&queue, nullptr);
    callAll(nowhere, ColorId(1), ColorwayId(1));
    EXPECT_EQ(nowhere.createColor("New", nyxColor_extended::PlainColor), ColorId());
    EXPECT_EQ(nowhere.createColorway(), ColorwayId());
    EXPECT_FALSE(nowhere.activeColorwayId().isValid());
    EXPECT_TRUE(nowhere.colors().empty() && nowhere.colorways().empty());

    ColorDB unheard(nullptr, renderer.api());
    ColorwayId const colorway = unheard.createColorway();
    ColorId const multi = unheard.cloneRecursively(unheard.multiColorFromColor(ColorId(1)));
    unheard.getColorwayParameters(colorway)->setPairs({multi}, {ColorId(1)});
    unheard.applyColorway(colorway);
    EXPECT_EQ(unheard.activeColorwayId(), colorway);
}

// Renderer calls and events of an edit, whatever else the scene holds.
TEST(ColorDBGrowth, OneEditCostsTheSameInEveryScene) {
    std::vector<std::size_t> counts[2];
    for (bool const big : {false, true}) {
        nyx::embedded::Renderer renderer;
        ColorId const sub = renderer.addColor("First", {});
        ColorId const multi = renderer.addMultiColor("Multi", {sub}, sub);
        for (int i = 0; i < (big ? 100'000 : 1000); ++i) {
            renderer.addColor("Colour " + std::to_string(i), {});
        }
        for (int i = 0; i < (big ? 1000 : 0); ++i) {
            renderer.addColorway("", {{multi, sub}});
        }
        ZEventQueue queue;
        EventTrace events(queue);
        ColorDB db(&queue, renderer.api());
        ZColorExt value(ZColor(1, 1, 1, 1, "Colour 7"));
        std::function<void()> const edits[] = {
            [&] {
                db.getColorParameters(sub)->setColor({1, 0, 0, 1}), db.pushColor(sub);
            },
            [&] { db.getColorParameters(sub)->setDisplayName("New"), db.pushColor(sub); },
            [&] { db.pushColor(sub); },
            [&] {
                db.setActiveSubColor({multi, sub});
            },
            [&] { db.pushColor(value); },
            [&] { db.clone(sub); },
            [&] { db.multiColorFromColor(sub); },
            [&] { db.createColor("Colour 7", nyxColor_extended::PlainColor); },
        };
        renderer.recordJournal(true);
        for (auto const& edit : edits) {
            edit();
            std::string const text = events.take();
            counts[big].push_back(renderer.takeJournal().size());
            counts[big].push_back(static_cast<std::size_t>(std::ranges::count(text, '\n')));
        }
    }
    EXPECT_EQ(counts[0], counts[1]);
}
