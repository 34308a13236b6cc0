#include "colors/ControllerScene.h"
#include "support/Mishaps.h"
#include "zsg/colors/IColorLinkHandler.h"
#include "zsg/colors/IColorLinker.h"

using namespace zsg;

namespace {

struct Studio final : ControllerScene {
    Studio() {
        queue.unsubscribe(this);
        use(rim);
        edit.setDisplayName(green, "Leaf");
    }
    ~Studio() override { TearDown(); }
    void TestBody() override {}
    IEventQueue& events() { return queue; }

    /// Ready to be run: making them also asks for memory, and changes the scene.
    Mishaps::Operations operations() {
        std::vector<Edit> edits{{[this] { edit.applyColorway(way); }, "", ""}};
        for (auto const& more : {colorEdits(), colorwayEdits()}) {
            edits.insert(edits.end(), more.begin(), more.end());
        }
        Mishaps::Operations all;
        for (Edit const& step : edits) {
            all.push_back(step.run);
            undoLeavesNothing.push_back(step.left.empty());
        }
        Mishaps::Operations const others{
            [this] { stack.undo(), stack.redo(); },
            [this] { db->handleColorwayActivated(summer); },
            [this] { db->cloneRecursively(cover); },
            [this] {
                ZColorExt value = db->colorFromId(cover);
                value.setId(nyx::ColorId());
                db->getColorLinker(&edit, nullptr)->importColor(value);
            },
            [this] {
                ZColorExt value = db->colorFromId(cover);
                ColorDB other(&queue, renderer.api());
                other.applyColorway(winter), other.pushTempColor(value);
            },
        };
        all.insert(all.end(), others.begin(), others.end());
        auto const ways = db->colorways();
        for (nyx::ColorwayId const id : std::vector<nyx::ColorwayId>(ways.begin(), ways.end())) {
            db->getColorwayParameters(id);
            db->pushColorway(id); // without the pairs that the first reading drops
        }
        before = renderer.dump();
        return all;
    }

    void check(std::size_t operation) {
        EXPECT_EQ(stack.macroDepth(), 0);
        EXPECT_EQ(renderer.ledger().lockDepth, 0);
        if (operation < undoLeavesNothing.size() && undoLeavesNothing[operation]) {
            stack.goTo(1);
            EXPECT_EQ(since(before), "");
        }
    }

private:
    ColorId const rim = multiColor("Rim", {red, blue});
    ColorwayId const way = renderer.colorways().add("Both", {{cover, green}, {rim, blue}});
    std::vector<bool> undoLeavesNothing;
    std::string before;
};

/// Two colorways are active, and the renderer names the one that a switch back names first.
struct Wardrobe final : ControllerScene {
    Wardrobe() {
        queue.unsubscribe(this);
        db->getColorwayParameters(winter)->setActive(true);
        db->pushColorway(winter);
        db->getColorSettingsParameters()->setActiveColorwayId(summer);
        db->getColorSettingsParameters()->commit(false);
        before = renderer.dump();
    }
    ~Wardrobe() override { TearDown(); }
    void TestBody() override {}
    IEventQueue& events() { return queue; }
    Mishaps::Operations operations() {
        return {[this] { edit.applyColorway(way); }, [this] { edit.applyColorway(summer); }};
    }
    void check(std::size_t) { EXPECT_EQ(since(before), ""); }

private:
    ColorwayId const way = renderer.colorways().add("Both", {{cover, green}});
    std::string before;
};

} // namespace

// All that was lent is back, and nothing stays that no entry of the history stands for.
TEST(ColorMishaps, WhateverGoesWrongNothingIsLost) { Mishaps::inTurn<Studio>(); }

TEST(ColorMishaps, ASwitchLeavesEveryColorwayAsActiveAsItWas) { Mishaps::inTurn<Wardrobe>(); }

using ColorAllocationCounts = ControllerScene;

std::size_t cost(auto const& action) {
    std::size_t const before = Allocations::count();
    action();
    return Allocations::count() - before;
}

TEST_F(ColorAllocationCounts, DoNotGrowWithTheUndoStackNorWithTheColorways) {
    queue.unsubscribe(this);
    constexpr std::size_t edits = 100;
    db->getColorParameters(red);
    // Three copies of the edit, each with its block, the command and the event; now and then the
    // stack's own list.
    EXPECT_LE(cost([&] {
                  for (std::size_t i = 0; i < edits; ++i) {
                      edit.setColor(red, ZColor(float(i), 0, 0), AllowForwardUndoMerge::No);
                  }
              }),
              8 * edits + 10);

    // To place one pair, the others are not looked up one by one.
    auto const removal = [&](unsigned pairs) {
        std::vector<nyx::embedded::ColorwayPair> list{{cover, red}};
        for (unsigned i = 1; i < pairs; ++i) {
            list.push_back({ColorId(1000 + i), red});
        }
        ColorwayId const way = renderer.colorways().add("Way", list);
        renderer.faults().noScene = true; // or the first reading drops what is unused
        db->getColorwayParameters(way);
        renderer.faults().noScene = false;
        edit.setSubColors(cover, ids(red, green));
        return cost([&] { EXPECT_TRUE(edit.removeSubColors(cover, ids(red))); });
    };
    removal(2);
    std::size_t const few = removal(2);
    EXPECT_LE(removal(2000), few + 10);

    // Binding one place does not read all the others.
    auto const linking = [&](unsigned places) {
        ColorId const from = color("From");
        nyx::MaterialId const material = renderer.materials().add("Material");
        for (unsigned i = 0; i < places; ++i) {
            renderer.materials().bindColor(material, i, "a parameter with a long name", from);
        }
        return cost([&] { edit.linkColor(from, red); });
    };
    EXPECT_LE(linking(1000), 15 * linking(100));
}

TEST_F(ColorAllocationCounts, AreTheSameForEachSubColor) {
    queue.unsubscribe(this);
    struct Links final : IColorLinkHandler {
        Resolution resolveConflict(ZColorExt const&, int, ColorId) override {
            return Resolution::Link;
        }
    } handler;
    auto const linker = db->getColorLinker(&edit, &handler);
    auto const many = [&](unsigned count) {
        std::vector<ColorId> subs;
        for (unsigned i = 0; i < count; ++i) {
            subs.push_back(color("Sub"));
        }
        return multiColor("Many", subs);
    };
    auto const clone = [&](unsigned count) {
        ColorId const multi = many(count);
        return cost([&] { db->cloneRecursively(multi); });
    };
    auto const merge = [&](unsigned count) {
        ColorId const to = many(count);
        ColorId const from = many(count);
        return cost([&] { linker->mergeSubColors(to, from); });
    };
    auto const import = [&](unsigned count) { // all of them are linked to one colour
        ZColorExt brought = db->colorFromId(cover);
        brought.setId({});
        brought.setColors(std::vector(count, ZColorExt::ZColorWithId({1, 1, 1, 1, "Green"}, {})));
        return cost([&] { linker->importColor(brought); });
    };
    EXPECT_LE(clone(1000), 11 * clone(100));
    EXPECT_LE(merge(1000), 11 * merge(100));
    EXPECT_LE(import(1000), 11 * import(100));

    auto const addOne = [&](unsigned count) {
        ColorId const multi = many(count);
        edit.addSubColors(multi, ids(red), -1, {});
        return cost([&] { edit.addSubColors(multi, ids(green), -1, {}); });
    };
    EXPECT_LE(addOne(1000), addOne(100) + 10);
}
