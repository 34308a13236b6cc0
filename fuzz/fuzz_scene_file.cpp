#include "nyxembedded/Renderer.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

// Any text is either refused, and then changes nothing, or gives a scene that saving and loading
// keeps as it is.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    nyx::embedded::Renderer renderer;
    std::string const empty = renderer.saveSceneText();
    std::string const text(data, data + size);
    bool const isLoaded = renderer.loadSceneText(text).empty();
    std::string const saved = renderer.saveSceneText();
    if (!isLoaded) {
        if (saved != empty) {
            std::abort();
        }
        return 0;
    }
    nyx::embedded::Renderer again;
    if (!again.loadSceneText(saved).empty() || again.saveSceneText() != saved ||
        again.dump() != renderer.dump()) {
        std::abort();
    }
    return 0;
}
