#include "ColorFuzzer.h"
#include "require.h"

// Colour edits while the renderer fails and listeners throw or edit in turn: whatever happens, all
// that was lent comes back, no macro and no lock stays, and the next edit works.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    nyx::embedded::Renderer renderer;
    auto const before = renderer.ledger();
    {
        nyx::ColorId const red = renderer.colors().add("Red", {1, 0, 0, 1});
        nyx::ColorId const blue = renderer.colors().add("Blue", {0, 0, 1, 1});
        nyx::ColorId const cover = renderer.colors().addMulti("Cover", {red, blue}, red);
        nyx::MaterialId const fabric = renderer.materials().add("Fabric");
        renderer.materials().bindColor(fabric, 1, "color", cover);
        renderer.items().addObject("Chair", {}, fabric);
        renderer.colorways().add("Summer", {{cover, red}});
        renderer.colorways().add("Winter", {{cover, blue}});

        ColorFuzzer fuzzer(renderer, input);
        while (input.remaining_bytes() > 0) {
            auto& faults = renderer.faults();
            auto const mishap = input.ConsumeIntegralInRange(0, 9);
            faults.failCreations = mishap == 1 ? 1 : 0;
            faults.noUniqueNames = mishap == 2;
            faults.noScene = mishap == 3;
            faults.noSettings = mishap == 4;
            fuzzer.reaction = nullptr;
            if (mishap == 5) {
                fuzzer.reaction = [] { throw std::runtime_error("a listener"); };
            } else if (mishap == 6) {
                fuzzer.reaction = [&] { fuzzer.step(); };
            }
            try {
                fuzzer.step();
            } catch (std::bad_optional_access const&) {
                require(faults.noUniqueNames || faults.noScene);
            } catch (std::runtime_error const&) {
                require(mishap == 5);
            }
            require(fuzzer.stack.macroDepth() == 0 && renderer.ledger().lockDepth == 0);
        }
        renderer.faults() = {};
        fuzzer.reaction = nullptr;
        fuzzer.stack.goTo(0);
        fuzzer.stack.goTo(fuzzer.stack.count());
        fuzzer.edit.setDisplayName(red, "Still here");
        require(renderer.colors().record(red)->name == "Still here");
        if (input.ConsumeBool()) {
            fuzzer.db.reset(); // and the commands behind it
            require(!fuzzer.stack.undo());
        }
        fuzzer.stack.clear();
        fuzzer.db.reset();
        renderer.processEvents();
    }
    auto const after = renderer.ledger();
    require(after.blocks == before.blocks && after.arrays == before.arrays &&
            after.texts == before.texts && after.alignedBlocks == before.alignedBlocks);
    return 0;
}
