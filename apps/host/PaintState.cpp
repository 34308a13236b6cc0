#include "host/PaintState.h"

#include "host/Host.h"
#include "zsg/core/ISceneGraph.h"
#include "zsg/painting/IPainter.h"
#include "zsg/painting/IPainterManager.h"
#include "zsg/painting/IPainterSurface.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>

namespace app {

namespace {

/// In the order of the enumeration.
constexpr std::array<char const*, 14> modeNames = {
    "normal",  "multiply",    "screen",     "overlay",    "add",        "subtract",   "darken",
    "lighten", "color-dodge", "color-burn", "hard-light", "soft-light", "difference", "exclusion"};

} // namespace

zsg::IPainter& painter(Host& host) { return *host.root().painterManager()->painter(); }

zsg::IPainterSurface& currentSurface(Host& host) {
    auto const surfaces = painter(host).surfaces();
    if (surfaces.empty()) {
        throw CommandError("there is no surface; \"surface new 512\" makes one");
    }
    zsg::IPainterSurface* const chosen =
        painter(host).surface(host.sceneState<PaintState>().surface);
    return chosen ? *chosen : *surfaces.front();
}

zsg::IPainterSurface& takeSurface(Host& host, Arguments& arguments) {
    nyx::SurfaceId const id(arguments.number("the id of a surface"));
    zsg::IPainterSurface* const surface = painter(host).surface(id);
    if (!surface) {
        throw CommandError("there is no surface " + std::to_string(id.toUint()));
    }
    return *surface;
}

unsigned takePaintLayer(Host& host, Arguments& arguments) {
    auto const layers = currentSurface(host).layers();
    std::string const word = arguments.word("the name or the index of a layer");
    std::optional<unsigned> found;
    for (unsigned i = 0; i < layers.size(); ++i) {
        if (layers[i].name && word == layers[i].name) {
            if (found) {
                throw CommandError("several layers are named so; give an index");
            }
            found = i;
        }
    }
    if (found) {
        return *found;
    }
    unsigned const index = Arguments({word}).number("the name or the index of a layer");
    if (index >= layers.size()) {
        throw CommandError("there are " + std::to_string(layers.size()) + " layers, from 0");
    }
    return index;
}

nyx::ColorBlendMode takeBlendMode(Arguments& arguments) {
    std::string const word = arguments.word("a blend mode");
    auto const found = std::find(modeNames.begin(), modeNames.end(), word);
    if (found == modeNames.end()) {
        std::string all;
        for (char const* const name : modeNames) {
            all += (all.empty() ? "" : ", ") + std::string(name);
        }
        throw CommandError("expected one of " + all);
    }
    return static_cast<nyx::ColorBlendMode>(found - modeNames.begin());
}

std::string blendModeName(nyx::ColorBlendMode mode) {
    auto const number = static_cast<std::size_t>(mode);
    return number < modeNames.size() ? modeNames[number] : std::to_string(static_cast<int>(mode));
}

} // namespace app
