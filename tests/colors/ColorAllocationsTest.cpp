#include "colors/ControllerScene.h"
#include "support/Allocations.h"
#include "zsg/colors/IColorLinker.h"

#include <new>

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

    /// Ready to be run: making them also asks for memory, and changes the scene.
    std::vector<std::function<void()>> operations() {
        std::vector<std::function<void()>> all{
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
        for (auto const& edits : {colorEdits(), colorwayEdits()}) {
            for (Edit const& step : edits) {
                all.push_back(step.run);
            }
        }
        return all;
    }

    using ColorScene::renderer;
    using ControllerScene::stack;
};

} // namespace

TEST(ColorAllocationsTest, WhicheverFailsNothingThatWasLentIsLost) {
    std::size_t const count = Studio().operations().size();
    for (std::size_t operation = 0; operation < count; ++operation) {
        for (std::size_t number = 0; number < 2000; ++number) {
            SCOPED_TRACE(std::to_string(operation) + ", allocation " + std::to_string(number));
            Studio studio;
            std::function<void()> const run = studio.operations()[operation];
            bool happened = false;
            try {
                Allocations::Failure const failure(number);
                struct Watch {
                    ~Watch() { into = failure.hasHappened(); }
                    Allocations::Failure const& failure;
                    bool& into;
                } const watch{failure, happened};
                run();
            } catch (std::bad_alloc const&) { // must reach the caller, and leave all in order
            }
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
