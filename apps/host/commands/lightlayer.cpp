#include "host/Command.h"
#include "host/CommandResult.h"
#include "host/Host.h"
#include "host/LightArguments.h"
#include "host/counted.h"
#include "host/pictures/LightMatrix.h"
#include "host/pictures/Picture.h"
#include "host/pictures/PictureFile.h"
#include "host/printedBy.h"
#include "zsg/lightlayers/ILightLayerApi.h"
#include "zsg/lightlayers/ILightLayerController.h"

#include <ostream>

namespace app {

namespace {

void printLayer(Host& host, nyx::LightLayerId layer) {
    if (!layer.isValid()) {
        throw CommandError("no light layer could be made");
    }
    host.out() << "  " << layerLine(host, layer) << '\n';
}

template <class Ids>
nlohmann::ordered_json itemsResult(Host& host, Ids const& ids) {
    auto list = nlohmann::ordered_json::array();
    for (nyx::ObjectId const id : ids) {
        auto const item = host.renderer().items().record(nyx::GroupItemId(id.toUint()));
        list.push_back({{"id", id.toUint()}, {"name", item ? item->name : ""}});
    }
    return list;
}

void list(Host& host, Arguments&) {
    zsg::ILightLayerApi const& api = lightLayers(host);
    beginResultList(host);
    for (nyx::LightLayerId const id : api.layers()) {
        std::size_t const lights = api.lights(id).size();
        addResult(host, [&] {
            auto result = layerResult(host, id);
            result["lights"] = lights;
            return result;
        });
        host.out() << "  " << layerLine(host, id) << ": " << counted(lights, "light", "lights")
                   << '\n';
    }
}

void show(Host& host, Arguments& arguments) {
    nyx::LightLayerId const layer = takeLayer(host, arguments);
    arguments.done();
    auto const lights = lightLayers(host).lights(layer);
    host.out() << "  " << layerLine(host, layer) << '\n';
    for (nyx::ObjectId const light : lights) {
        host.out() << "    " << itemLine(host, nyx::GroupItemId(light.toUint())) << '\n';
    }
    giveResult(host, [&] {
        auto result = layerResult(host, layer);
        result["lights"] = itemsResult(host, lights);
        return result;
    });
}

void items(Host& host, Arguments& arguments) {
    nyx::LightLayerId const layer = takeLayer(host, arguments);
    arguments.done();
    auto const objects = lightLayers(host).getLayerItems(layer);
    giveResult(host, [&] { return itemsResult(host, objects); });
    for (nyx::ObjectId const object : objects) {
        host.out() << "  " << itemLine(host, nyx::GroupItemId(object.toUint())) << '\n';
    }
}

void create(Host& host, Arguments& arguments) {
    std::string const name = arguments.word("a name");
    arguments.done();
    lightLayers(host);
    printLayer(host, lightLayerController(host).createLayer(name));
}

void remove(Host& host, Arguments& arguments) {
    nyx::LightLayerId const layer = takeLayer(host, arguments);
    arguments.done();
    lightLayerController(host).deleteLayer(layer);
}

void addLights(Host& host, Arguments& arguments) {
    nyx::LightLayerId const layer = takeLayer(host, arguments);
    lightLayerController(host).addLightsToLayer(layer, takeLights(host, arguments));
}

void removeLights(Host& host, Arguments& arguments) {
    nyx::LightLayerId const layer = takeLayer(host, arguments);
    lightLayerController(host).removeLightsFromLayer(layer, takeLights(host, arguments));
}

void clone(Host& host, Arguments& arguments) {
    nyx::LightLayerId const layer = takeLayer(host, arguments);
    arguments.done();
    printLayer(host, lightLayers(host).cloneLayer(layer));
}

void name(Host& host, Arguments& arguments) {
    nyx::LightLayerId const layer = takeLayer(host, arguments);
    std::string const text = arguments.word("a name");
    arguments.done();
    lightLayers(host).setLayerName(layer, text);
}

void flags(Host& host, Arguments& arguments) {
    nyx::LightLayerId const layer = takeLayer(host, arguments);
    std::uint32_t const bits = arguments.number("flags");
    arguments.done();
    lightLayerController(host).setLayerFlags(layer, nyx::Flags<layerFlags>::fromBits(bits));
}

void sync(Host& host, Arguments&) { lightLayerController(host).lightLayerApi()->sync(); }

void dump(Host& host, Arguments&) {
    zsg::ILightLayerApi const& api = lightLayers(host);
    host.out() << printedBy([&] { api.dump(); });
}

void matrix(Host& host, Arguments&) { host.out() << LightMatrix(host).text(); }

void save(Host& host, Arguments& arguments) {
    PictureFile const file = PictureFile::take(host, arguments);
    arguments.done();
    file.write(LightMatrix(host).picture());
}

void split(Host& host, Arguments& arguments) {
    lightLayers(host).moveLightsToNewLayer(takeLights(host, arguments));
}

constexpr Command table[] = {
    {"lightlayer list", "", "list light layers", "lightlayer list", list},
    {"lightlayer show", "LAYER", "show a layer and its lights as they are read",
     "lightlayer show Accent", show},
    {"lightlayer items", "LAYER", "list what the scene has in a layer now",
     "lightlayer items Accent", items},
    {"lightlayer matrix", "", "show which light is in which layer", "lightlayer matrix", matrix},
    {"lightlayer save", "PATH [dark]", "draw which light is in which layer (.svg, .png)",
     "lightlayer save lights.svg", save},
    {"lightlayer dump", "", "print the library's own dump", "lightlayer dump", dump},
    {"lightlayer new", "NAME", "make a layer", "lightlayer new Evening", create},
    {"lightlayer delete", "LAYER", "delete a layer; its lights go to layer 1",
     "lightlayer delete Evening", remove},
    {"lightlayer add", "LAYER LIGHT...", "add lights to a layer (an inverted one: take out)",
     "lightlayer add Accent \"Key Light\"", addLights},
    {"lightlayer remove", "LAYER LIGHT...", "take lights out (an inverted one: add)",
     "lightlayer remove Accent \"Key Light\"", removeLights},
    {"lightlayer copy", "LAYER", "make a layer like another (no undo)", "lightlayer copy Accent",
     clone},
    {"lightlayer split", "LIGHT...", "move lights of layer 1 to a new layer (no undo)",
     "lightlayer split \"Key Light\"", split},
    {"lightlayer name", "LAYER NAME", "rename a layer (no undo)", "lightlayer name Practical Lamps",
     name},
    {"lightlayer flags", "LAYER FLAGS", "set flags: 1 inverted, 16 deleted (no undo)",
     "lightlayer flags Accent 1", flags},
    {"lightlayer sync", "", "read the scene's layers again", "lightlayer sync", sync},
};

} // namespace

Family lightlayerFamily() { return {"light layers: look at them and edit them", table}; }

} // namespace app
