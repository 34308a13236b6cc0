// The layers of the current surface. A layer is given by its index from the top or by its name.

#include "host/ColorArguments.h"
#include "host/Command.h"
#include "host/CommandResult.h"
#include "host/Host.h"
#include "host/PaintState.h"
#include "host/printable.h"
#include "host/sRGB.h"
#include "zsg/painting/IPainterSurface.h"

#include <ostream>

namespace app {

namespace {

void print(Host& host, nyxLayerInfo const& layer, unsigned index) {
    zsg::IPainterSurface const& surface = currentSurface(host);
    host.out() << (index == surface.editLayer() ? "  * " : "    ") << index << ' '
               << (layer.name ? printable(layer.name) : std::string("(no name)"));
    if (layer.blend_mode != nyx::ColorBlendMode::Normal) {
        host.out() << ", " << blendModeName(layer.blend_mode);
    }
    nyxColor_rgba const& c = layer.background;
    if (c.a != 0) {
        host.out() << ", on " << hexColorWithAlpha(c);
    }
    host.out() << (layer.visible ? "" : ", hidden") << (layer.deleted ? ", deleted" : "") << '\n';
}

nlohmann::ordered_json paintLayerResult(Host& host, nyxLayerInfo const& layer, unsigned index) {
    return {{"index", index},
            {"name", layer.name ? layer.name : ""},
            {"blend", blendModeName(layer.blend_mode)},
            {"background", hexColorWithAlpha(layer.background)},
            {"visible", layer.visible},
            {"deleted", layer.deleted},
            {"edited", index == currentSurface(host).editLayer()}};
}

void list(Host& host, Arguments&) {
    unsigned index = 0;
    beginResultList(host);
    for (nyxLayerInfo const& layer : currentSurface(host).layers()) {
        addResult(host, [&] { return paintLayerResult(host, layer, index); });
        print(host, layer, index++);
    }
}

void show(Host& host, Arguments& arguments) {
    unsigned const layer = takePaintLayer(host, arguments);
    arguments.done();
    auto const layers = currentSurface(host).layers();
    print(host, layers[layer], layer);
    giveResult(host, [&] { return paintLayerResult(host, layers[layer], layer); });
}

void add(Host& host, Arguments& arguments) {
    int const index = arguments.empty() ? 0 : arguments.integer("an index");
    arguments.done();
    currentSurface(host).addLayer(index);
}

template <bool deleted>
void setDeleted(Host& host, Arguments& arguments) {
    unsigned const layer = takePaintLayer(host, arguments);
    arguments.done();
    currentSurface(host).setLayerDeleted(layer, deleted);
}

void setVisible(Host& host, Arguments& arguments) {
    unsigned const layer = takePaintLayer(host, arguments);
    bool const visible = arguments.onOff();
    arguments.done();
    currentSurface(host).setLayerVisibility(layer, visible);
}

void blend(Host& host, Arguments& arguments) {
    unsigned const layer = takePaintLayer(host, arguments);
    nyx::ColorBlendMode const mode = takeBlendMode(arguments);
    arguments.done();
    currentSurface(host).setLayerBlend(layer, mode);
}

void name(Host& host, Arguments& arguments) {
    unsigned const layer = takePaintLayer(host, arguments);
    std::string const text = arguments.word("a name");
    arguments.done();
    currentSurface(host).setLayerName(layer, QString::fromStdString(text));
}

void move(Host& host, Arguments& arguments) {
    unsigned const from = takePaintLayer(host, arguments);
    unsigned const to = takePaintLayer(host, arguments);
    arguments.done();
    currentSurface(host).moveLayer(from, to);
}

void background(Host& host, Arguments& arguments) {
    unsigned const layer = takePaintLayer(host, arguments);
    nyxColor_rgba const color = takeRgba(host, arguments);
    bool const isPreview = arguments.flag("preview");
    arguments.done();
    if (!currentSurface(host).setLayerBackgroundColor(layer, color, !isPreview)) {
        throw CommandError("it has that background already");
    }
}

void edit(Host& host, Arguments& arguments) {
    unsigned const layer = takePaintLayer(host, arguments);
    arguments.done();
    currentSurface(host).setEditLayer(layer);
}

constexpr Command table[] = {
    {"layer list", "", "list the layers from the top, * marks the edit layer", "layer list", list},
    {"layer show", "LAYER", "show the line of one", "layer show 0", show},
    {"layer new", "[INDEX]", "add one, above that of the index or at the top", "layer new 0", add},
    {"layer delete", "LAYER", "mark it as deleted", "layer delete 1", setDeleted<true>},
    {"layer restore", "LAYER", "what the library makes of it: another entry that deletes; use undo",
     "layer restore 1", setDeleted<false>},
    {"layer visible", "LAYER on|off", "show or hide it", "layer visible 0 off", setVisible},
    {"layer blend", "LAYER MODE", "how it is laid over those below", "layer blend 0 multiply",
     blend},
    {"layer name", "LAYER NAME", "name it; \"\" takes the name away", "layer name 0 Shadows", name},
    {"layer move", "LAYER LAYER", "take the first to where the second is", "layer move 0 1", move},
    {"layer background", "LAYER RGBA [preview]", "the colour beneath the paint; preview: no undo",
     "layer background Shadows #20304080", background},
    {"layer use", "LAYER", "the layer that paint goes to (no undo)", "layer use Shadows", edit},
};

} // namespace

Family layerFamily() { return {"the layers of the current surface", table}; }

} // namespace app
