#include "ColorFuzzer.h"
#include "require.h"

// A scene from a text (any that is accepted), edited, saved in between, and everything undone:
// what is saved can be loaded, and gives the same scene.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    nyx::embedded::Renderer renderer;
    if (!renderer.loadSceneText(input.ConsumeRandomLengthString(4000)).empty()) {
        renderer.colors().addMulti("Cover", {renderer.colors().add("Red", {1, 0, 0, 1})},
                                   nyx::ColorId(1));
    }
    auto const requireSaved = [&] {
        nyx::embedded::Renderer again;
        require(again.loadSceneText(renderer.saveSceneText()).empty());
        require(again.dump() == renderer.dump());
    };
    ColorFuzzer fuzzer(renderer, input);
    for (int i = 0; i < 64 && input.remaining_bytes() > 0; ++i) {
        try {
            fuzzer.step();
        } catch (std::bad_optional_access const&) {
            require(false); // names can always be made
        }
        if (i % 16 == 0) {
            requireSaved();
        }
    }
    fuzzer.stack.goTo(0);
    requireSaved();
    fuzzer.stack.goTo(fuzzer.stack.count());
    requireSaved();
    fuzzer.stack.clear();
    fuzzer.db.reset();
    renderer.processEvents();
    return 0;
}
