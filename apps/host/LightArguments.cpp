#include "host/LightArguments.h"

#include "host/Host.h"
#include "host/idArgument.h"
#include "host/printable.h"
#include "zsg/core/ISceneGraph.h"
#include "zsg/lightlayers/ILightLayerApi.h"
#include "zsg/lightlayers/ILightLayerController.h"

#include <nlohmann/json.hpp>

namespace app {

namespace {

nyx::GroupItemId itemOf(Host& host, std::string const& word, char const* expected) {
    auto const& items = host.renderer().items();
    return idOf<nyx::GroupItemId>(
        word, expected,
        [&](std::string const& name, nyx::GroupItemId id) {
            return id.isValid() && items.record(id) ? id : items.find(name);
        },
        [&] { return recordNames(items); });
}

std::vector<std::string> takeWords(Arguments& arguments, char const* expected) {
    std::vector<std::string> words{arguments.word(expected)};
    for (std::string& word : arguments.rest()) {
        words.push_back(std::move(word));
    }
    return words;
}

} // namespace

zsg::ILightLayerController& lightLayerController(Host& host) {
    return *host.root().lightLayerController();
}

zsg::ILightLayerApi& lightLayers(Host& host) {
    zsg::ILightLayerApi& api = *lightLayerController(host).lightLayerApi();
    if (api.layerCount() == 0) {
        api.sync();
    }
    return api;
}

nyx::LightLayerId takeLayer(Host& host, Arguments& arguments) {
    constexpr unsigned most = 32;
    zsg::ILightLayerApi& api = lightLayers(host);
    auto const exists = [](nyx::LightLayerId id) { return id.toUint() - 1 < most; };
    return idOf<nyx::LightLayerId>(
        arguments.word("a light layer"), "light layer",
        [&](std::string const& name, nyx::LightLayerId id) {
            if (exists(id) && !api.layerName(id).empty()) {
                return id;
            }
            for (unsigned number = 1; number <= most; ++number) {
                if (api.layerName(nyx::LightLayerId(number)) == name && !name.empty()) {
                    return nyx::LightLayerId(number);
                }
            }
            return nyx::LightLayerId();
        },
        [&] {
            std::vector<std::string> names;
            for (nyx::LightLayerId const id : api.layers()) {
                names.push_back(api.layerName(id));
            }
            return names;
        });
}

std::vector<nyx::GroupItemId> takeItems(Host& host, Arguments& arguments) {
    std::vector<nyx::GroupItemId> items;
    for (std::string const& word : takeWords(arguments, "an item")) {
        items.push_back(itemOf(host, word, "item"));
    }
    return items;
}

std::vector<nyx::ObjectId> takeLights(Host& host, Arguments& arguments) {
    std::vector<nyx::ObjectId> lights;
    for (std::string const& word : takeWords(arguments, "a light")) {
        nyx::GroupItemId const id = itemOf(host, word, "light");
        if (!word.starts_with('=') && !host.renderer().items().record(id)->isLight()) {
            throw CommandError("\"" + word + "\" is no light");
        }
        lights.emplace_back(id.toUint());
    }
    return lights;
}

std::string layerLine(Host& host, nyx::LightLayerId layer) {
    zsg::ILightLayerApi const& api = lightLayers(host);
    unsigned const flags = api.flags(layer).bits();
    return std::to_string(layer.toUint()) + ' ' + printable(api.layerName(layer)) +
           (flags == 0 ? "" : ", flags " + std::to_string(flags)) +
           ((flags & 0x1) != 0 ? ", inverted" : "") + ((flags & 0x10) != 0 ? ", deleted" : "");
}

nlohmann::ordered_json layerResult(Host& host, nyx::LightLayerId layer) {
    zsg::ILightLayerApi const& api = lightLayers(host);
    return {
        {"id", layer.toUint()}, {"name", api.layerName(layer)}, {"flags", api.flags(layer).bits()}};
}

std::string itemLine(Host& host, nyx::GroupItemId item) {
    auto const info = host.renderer().items().record(item);
    return std::to_string(item.toUint()) + ' ' + (info ? printable(info->name) : "(no such item)");
}

} // namespace app
