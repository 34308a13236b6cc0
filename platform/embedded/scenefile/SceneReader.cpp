#include "scenefile/SceneReader.h"

#include "scenefile/JsonNode.h"
#include "scenefile/SurfaceSection.h"
#include "store/ColorStore.h"
#include "store/ColorwayStore.h"
#include "store/ItemTree.h"
#include "store/LightLayers.h"
#include "store/MaterialStore.h"
#include "store/Scene.h"
#include "store/SceneLights.h"
#include "store/Surfaces.h"

#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace nyx::embedded {
namespace {

constexpr std::uint32_t lastId = 0xFFFFFFFEu;

/// The id of a record, which lies above those of the records before it.
template <class IdType>
IdType readId(JsonNode const& record, IdType next) {
    JsonNode const node = record.member("id");
    std::uint32_t const id = node.word(1, lastId);
    if (id < next.toUint()) {
        node.fail("ids ascend: expected " + std::to_string(next.toUint()) + " or more, found " +
                  std::to_string(id));
    }
    return IdType(id);
}

/// A reference may name a record that is gone, and may be the invalid id, which an absent key means
/// too.
template <class IdType>
IdType readReference(JsonNode const& record, std::string_view key) {
    auto const node = record.find(key);
    return node ? IdType(node->word()) : IdType();
}

std::vector<nyx::ColorId> readReferences(JsonNode const& record, std::string_view key) {
    std::vector<nyx::ColorId> ids;
    if (auto const list = record.find(key)) {
        ids.reserve(list->arraySize());
        list->forEachElement([&ids](JsonNode const& id) { ids.emplace_back(id.word()); });
    }
    return ids;
}

std::string readText(JsonNode const& record, std::string_view key) {
    auto const node = record.find(key);
    return node ? node->text() : std::string();
}

std::uint32_t readWord(JsonNode const& record, std::string_view key) {
    auto const node = record.find(key);
    return node ? node->word() : 0;
}

nyxColor_rgba readColorValue(JsonNode const& node) {
    if (node.arraySize() != 4) {
        node.fail("expected 4 numbers (red, green, blue, alpha), found " +
                  std::to_string(node.arraySize()));
    }
    return {node.element(0).component(), node.element(1).component(), node.element(2).component(),
            node.element(3).component()};
}

void readColor(JsonNode const& node, ColorStore& colors) {
    node.checkObject({"id", "name", "originalName", "value", "flags", "subColors", "activeSub"});
    ColorRecord record;
    record.id = readId(node, colors.nextId());
    record.flags = readWord(node, "flags");
    record.name = readText(node, "name");
    record.originalName = readText(node, "originalName");
    record.value = readColorValue(node.member("value"));
    record.subColors = readReferences(node, "subColors");
    record.activeSub = readReference<nyx::ColorId>(node, "activeSub");
    static_cast<void>(colors.add(std::move(record)));
}

void readColorway(JsonNode const& node, ColorwayStore& colorways) {
    node.checkObject({"id", "name", "flags", "multiColors", "activeSubs"});
    ColorwayRecord record;
    record.id = readId(node, colorways.nextId());
    record.flags = readWord(node, "flags");
    record.name = readText(node, "name");
    record.multiColors = readReferences(node, "multiColors");
    record.activeSubs = readReferences(node, "activeSubs");
    static_cast<void>(colorways.add(std::move(record)));
}

std::vector<MaterialPlace> readPlaces(JsonNode const& list) {
    std::vector<MaterialPlace> places;
    std::set<std::pair<std::uint32_t, std::string>> seen;
    list.forEachElement([&](JsonNode const& node) {
        node.checkObject({"node", "parameter", "color"});
        MaterialPlace place;
        place.node = node.member("node").word();
        place.parameter = node.member("parameter").text();
        place.color = readReference<nyx::ColorId>(node, "color");
        if (!seen.emplace(place.node, place.parameter).second) {
            node.fail("the material has this place already");
        }
        places.push_back(std::move(place));
    });
    return places;
}

void readCmfValue(JsonNode const& pair, MaterialRecord& material) {
    if (pair.arraySize() != 2) {
        pair.fail("expected a key and a value, found " + std::to_string(pair.arraySize()) +
                  " elements");
    }
    if (!material.cmfValues.emplace(pair.element(0).text(), pair.element(1).text()).second) {
        pair.fail("the material has this key already");
    }
}

void readMaterial(JsonNode const& node, MaterialStore& materials) {
    node.checkObject({"id", "name", "places", "cmf", "metadata", "items"});
    MaterialRecord record;
    record.id = readId(node, materials.nextId());
    record.name = readText(node, "name");
    if (auto const places = node.find("places")) {
        record.places = readPlaces(*places);
    }
    if (auto const values = node.find("cmf")) {
        values->forEachElement([&](JsonNode const& pair) { readCmfValue(pair, record); });
    }
    record.metadata = readText(node, "metadata");
    if (auto const items = node.find("items")) {
        items->forEachElement([&](JsonNode const& item) { record.items.push_back(item.word()); });
    }
    static_cast<void>(materials.add(std::move(record)));
}

/// Layers of a file ascend, and the first one is where lights are that name none.
LightLayers readLightLayers(JsonNode const& list) {
    LightLayers layers;
    layers.setEnvironmentMask(LightLayers::forScene().environmentMask());
    nyx::LightLayerId next = LightLayers::defaultLayer;
    list.forEachElement([&](JsonNode const& node) {
        node.checkObject({"id", "name", "flags"});
        static_cast<void>(node.member("id").word(1, LightLayers::maximum));
        nyx::LightLayerId const id = readId(node, next);
        layers.add(
            {readText(node, "name"), nyx::Flags<layerFlags>::fromBits(readWord(node, "flags"))},
            id);
        next = nyx::LightLayerId(id.toUint() + 1);
    });
    if (!layers.find(LightLayers::defaultLayer)) {
        list.fail("there is no layer 1");
    }
    return layers;
}

ItemKind readKind(JsonNode const& node) {
    std::string const& kind = node.string();
    if (kind == "group") {
        return ItemKind::Group;
    }
    if (kind == "object") {
        return ItemKind::Object;
    }
    if (kind == "light") {
        return ItemKind::Light;
    }
    node.failExpected("\"group\", \"object\" or \"light\"");
}

void readItem(JsonNode const& node, nyxScene& scene) {
    node.checkObject({"id", "kind", "name", "parent", "material", "lightLayer", "unlisted"});
    ItemRecord record;
    record.id = readId(node, scene.items().nextId());
    record.kind = readKind(node.member("kind"));
    record.name = readText(node, "name");
    if (auto const parent = node.find("parent")) {
        record.parent = nyx::GroupItemId(parent->word());
        // Parents before their children, so that no item can be its own ancestor.
        if (!scene.items().find(record.parent)) {
            parent->failExpected("the id of an item further up");
        }
    }
    if (auto const material = node.find("material")) {
        if (record.kind != ItemKind::Object) {
            material->fail("only objects have a material");
        }
        record.material = nyx::MaterialId(material->word());
    }
    nyx::GroupItemId const id = scene.items().add(std::move(record));
    GroupItem& item = *scene.items().find(id);
    if (auto const layer = node.find("lightLayer")) {
        nyx::LightLayerId const wanted(layer->word());
        if (!item.is_light()) {
            layer->fail("only lights are in light layers");
        }
        if (!scene.lightLayers().find(wanted)) {
            layer->failExpected("the id of a light layer");
        }
        scene.lights().put({item.object_id()}, wanted);
    }
    if (auto const unlisted = node.find("unlisted")) {
        if (!item.is_light()) {
            unlisted->fail("only lights are in light layers");
        }
        item.record.unlisted = unlisted->boolean();
    }
}

/// The ids of records that are gone are not given out again, so the next ones are written down.
template <class Owner>
void readNextId(JsonNode const& nextIds, std::string_view key, Owner& owner) {
    if (auto const node = nextIds.find(key)) {
        auto const least = owner.nextId();
        owner.skipIdsBelow(decltype(owner.nextId())(node->word(least.toUint(), 0xFFFFFFFFu)));
    }
}

void readHeader(JsonNode const& file) {
    JsonNode const format = file.member("format");
    if (format.string() != "zsg-scene") {
        format.failExpected("\"zsg-scene\"");
    }
    JsonNode const version = file.member("version");
    if (version.number() != 1) {
        version.failExpected("1");
    }
}

template <class Owner>
void readSection(JsonNode const& file, std::string_view key, Owner& owner,
                 void (*readRecord)(JsonNode const&, Owner&)) {
    if (auto const section = file.find(key)) {
        section->forEachElement([&](JsonNode const& record) { readRecord(record, owner); });
    }
}

} // namespace

void readScene(nlohmann::json const& document, nyxScene& scene) {
    JsonNode const file(document);
    if (!document.is_object()) {
        file.failExpected("an object");
    }
    // Before the keys, because another version has other keys.
    readHeader(file);
    file.checkObject({"format", "version", "unitScale", "nextIds", "colors", "colorways",
                      "settings", "materials", "environmentLightMask", "lightLayers", "hierarchy",
                      "surfaces"});

    if (auto const scale = file.find("unitScale")) {
        if (scale->number() < 0) {
            scale->failExpected("a number not below 0");
        }
        scene.setUnitScale(scale->number());
    }
    readSection(file, "colors", scene.colors(), readColor);
    readSection(file, "colorways", scene.colorways(), readColorway);
    readSection(file, "materials", scene.materials(), readMaterial);
    if (auto const layers = file.find("lightLayers")) {
        scene.lights().replace(readLightLayers(*layers));
    }
    if (auto const mask = file.find("environmentLightMask")) {
        scene.lightLayers().setEnvironmentMask(mask->word());
    }
    readSection(file, "hierarchy", scene, readItem);
    readSection(file, "surfaces", scene.surfaces(), readSurface);
    if (auto const settings = file.find("settings")) {
        settings->checkObject({"activeColorway"});
        scene.colorways().setActive(readReference<nyx::ColorwayId>(*settings, "activeColorway"));
    }
    if (auto const next = file.find("nextIds")) {
        next->checkObject({"color", "colorway", "material", "item", "surface"});
        readNextId(*next, "color", scene.colors());
        readNextId(*next, "colorway", scene.colorways());
        readNextId(*next, "material", scene.materials());
        readNextId(*next, "item", scene.items());
        readNextId(*next, "surface", scene.surfaces());
    }
}

} // namespace nyx::embedded
