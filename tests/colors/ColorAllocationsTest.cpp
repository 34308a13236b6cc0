#include "colors/ControllerScene.h"
#include "support/Allocations.h"
#include "zsg/colors/IColorLinker.h"

#include <new>
#include <sstream>

using namespace zsg;

namespace {

/// One scene per failure. When it ends it checks that all that the renderer lent came back.
struct Studio final : ControllerScene {
    Studio() {
        queue.unsubscribe(this);
        for (nyx::ColorwayId const id : db->colorways()) {
            db->getColorwayParameters(id);
        }
        edit.setDisplayName(green, "Leaf");
    }
    ~Studio() override { TearDown(); }
    void TestBody() override {}

    void run(std::size_t operation) {
        std::vector<ZColor> const values{{1, 1, 0}, {1, 0, 1, 1, "Pink"}};
        std::vector<MultiColorPair> const pairs{{cover, green}};
        ZColorExt value = db->colorFromId(cover);
        std::function<void()> const operations[] = {
            [&] {
                edit.setColor(red, {0, 0, 1, 1, "Ruby"}, AllowForwardUndoMerge::No);
            },
            [&] { edit.setDisplayName(red, "Ruby"), edit.setDisplayName(winter, "Ice"); },
            [&] { edit.setFlags(red, 8, true); },
            [&] { edit.addSubColor(cover, values[1], 0); },
            [&] { edit.addSubKColors(cover, values); },
            [&] { edit.addOrSwitchSubColor(cover, blue, true); },
            [&] { edit.removeSubColors(cover, ids(red)); },
            [&] { edit.moveSubColors(cover, ids(red), 1, red); },
            [&] { edit.changeSubColor(cover, red, blue); },
            [&] { edit.unlinkSubColor(cover, 0); },
            [&] { edit.toggleMultiColor(cover); },
            [&] { edit.toggleMultiColor(blue); },
            [&] { edit.linkColor(red, blue); },
            [&] { edit.createColorway("Dune", pairs); },
            [&] { edit.applyColorway(winter); },
            [&] { edit.setColors(summer, pairs); },
            [&] { edit.addColors(summer, pairs, 0, true); },
            [&] { edit.removeMultiColors(summer, ids(cover)); },
            [&] { db->handleColorwayActivated(summer); },
            [&] { db->cloneRecursively(cover); },
            [&] {
                value.setId(nyx::ColorId());
                db->getColorLinker(&edit, nullptr)->importColor(value);
            },
            [&] {
                ColorDB other(&queue, renderer.api());
                other.applyColorway(winter), other.pushTempColor(value);
            },
            [&] { stack.undo(), stack.redo(); },
        };
        count = std::size(operations);
        operations[operation]();
    }

    std::size_t count = 1;
    using ColorScene::renderer;
    using ControllerScene::stack;
};

} // namespace

TEST(ColorAllocationsTest, WhicheverFailsNothingThatWasLentIsLost) {
    std::size_t operations = 1;
    for (std::size_t operation = 0; operation < operations; ++operation) {
        for (std::size_t number = 0; number < 2000; ++number) {
            SCOPED_TRACE(std::to_string(operation) + ", allocation " + std::to_string(number));
            Studio studio;
            bool happened = false;
            try {
                Allocations::Failure const failure(number);
                struct Watch {
                    ~Watch() { into = failure.hasHappened(); }
                    Allocations::Failure const& failure;
                    bool& into;
                } const watch{failure, happened};
                studio.run(operation);
            } catch (std::bad_alloc const&) { // must reach the caller, and leave all in order
            }
            operations = studio.count;
            EXPECT_EQ(studio.stack.macroDepth(), 0);
            EXPECT_EQ(studio.renderer.ledger().lockDepth, 0);
            if (!happened) {
                break;
            }
        }
    }
}

using ColorAllocationCounts = ControllerScene;

TEST_F(ColorAllocationCounts, DoNotGrowWithTheUndoStackNorWithTheColorways) {
    queue.unsubscribe(this);
    constexpr std::size_t edits = 100;
    auto const cost = [&](auto const& action) {
        std::size_t const before = Allocations::count();
        action();
        return Allocations::count() - before;
    };
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
        ColorwayId const way = renderer.addColorway("Way", list);
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
        nyx::MaterialId const material = renderer.addMaterial("Material");
        for (unsigned i = 0; i < places; ++i) {
            renderer.bindColor(material, i, "a parameter with a long name", from);
        }
        return cost([&] { edit.linkColor(from, red); });
    };
    EXPECT_LE(linking(1000), 15 * linking(100));
}
