#include "host/Command.h"
#include "host/CommandResult.h"
#include "host/Host.h"
#include "host/LightArguments.h"
#include "host/printable.h"
#include "zsg/lightlayers/ILightLayerApi.h"
#include "zsg/lightlayers/ILightLayerController.h"

#include <ostream>

namespace app {

namespace {

void list(Host& host, Arguments&) {
    nyx::embedded::Items const& items = host.renderer().items();
    beginResultList(host);
    for (nyx::GroupItemId const id : items.ids()) {
        auto const item = items.record(id);
        if (item->isLight()) {
            addResult(host, [&] {
                return nlohmann::ordered_json{
                    {"id", id.toUint()},
                    {"name", item->name},
                    {"layer", items.lightLayer(nyx::ObjectId(id.toUint())).toUint()},
                    {"unlisted", item->unlisted}};
            });
            host.out() << "  " << itemLine(host, id)
                       << (item->parent.isValid()
                               ? " in " + printable(items.record(item->parent)->name)
                               : "")
                       << ", layer "
                       << layerLine(host, items.lightLayer(nyx::ObjectId(id.toUint())))
                       << (item->unlisted ? ", unlisted" : "") << '\n';
        }
    }
}

void layers(Host& host, Arguments& arguments) {
    beginResultList(host);
    for (nyx::LightLayerId const id : lightLayers(host).layersOfItems(takeItems(host, arguments))) {
        addResult(host, [&] { return layerResult(host, id); });
        host.out() << "  " << layerLine(host, id) << '\n';
    }
}

void assign(Host& host, Arguments& arguments) {
    nyx::LightLayerId const layer = takeLayer(host, arguments);
    lightLayerController(host).setItemsLightLayer(layer, takeItems(host, arguments));
}

void unlisted(Host& host, Arguments& arguments) {
    bool const on = arguments.onOff();
    for (nyx::ObjectId const light : takeLights(host, arguments)) {
        host.renderer().items().setUnlisted(light, on);
    }
}

constexpr Command table[] = {
    {"light list", "", "list the scene's lights", "light list", list},
    {"light show", "ITEM...", "show the layers of lights and of what is in groups",
     "light show \"Key Light\" Accents", layers},
    {"light assign", "LAYER ITEM...", "put lights, and all lights of groups, into a layer",
     "light assign Accent \"Rim Light\" Accents", assign},
    {"light unlisted", "on|off LIGHT...", "leave lights out of lists, on the renderer's side",
     "light unlisted on \"Fill Light\"", unlisted},
};

} // namespace

Family lightFamily() { return {"lights, and the layers that they are in", table}; }

} // namespace app
