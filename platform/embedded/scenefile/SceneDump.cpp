#include "scenefile/SceneDump.h"

#include "store/ColorStore.h"
#include "store/ColorwayStore.h"
#include "store/ItemTree.h"
#include "store/LightLayers.h"
#include "store/MaterialStore.h"
#include "store/Scene.h"
#include "store/Surfaces.h"
#include "store/jsonText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace nyx::embedded {
namespace {

template <class Tag>
std::string idText(nyx::Id<Tag> id) {
    return id.isValid() ? std::to_string(id.toUint()) : "none";
}

/// As "%.9g" writes it, which tells any two floats apart, but in every locale.
std::string numberText(double value) {
    std::array<char, 32> digits{};
    auto const end = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                   std::chars_format::general, 9)
                         .ptr;
    return {digits.data(), end};
}

void appendHead(std::string& out, char const* kind, std::string const& id,
                std::string const& name) {
    out.append(kind).append(1, ' ').append(id).append(1, ' ');
    appendText(out, name);
}

void appendFlags(std::string& out, std::uint32_t flags) {
    if (flags != 0) {
        out.append(" flags ").append(std::to_string(flags));
    }
}

void append(std::string& out, ColorRecord const& record) {
    appendHead(out, "color", idText(record.id), record.name);
    for (float const component : {record.value.r, record.value.g, record.value.b, record.value.a}) {
        out.append(1, ' ').append(numberText(static_cast<double>(component)));
    }
    appendFlags(out, record.flags);
    if (!record.originalName.empty()) {
        appendText(out.append(" original "), record.originalName);
    }
    if (!record.subColors.empty()) {
        out += " subs";
        for (nyx::ColorId const sub : record.subColors) {
            out.append(1, ' ').append(idText(sub));
        }
    }
    if (record.activeSub.isValid()) {
        out.append(" active ").append(idText(record.activeSub));
    }
    out += '\n';
}

void append(std::string& out, ColorwayRecord const& record) {
    appendHead(out, "colorway", idText(record.id), record.name);
    appendFlags(out, record.flags);
    std::size_t const count = std::max(record.multiColors.size(), record.activeSubs.size());
    if (count != 0) {
        out += " pairs";
    }
    auto const at = [](std::vector<nyx::ColorId> const& ids, std::size_t i) {
        return i < ids.size() ? idText(ids[i]) : "missing";
    };
    for (std::size_t i = 0; i < count; ++i) {
        out.append(1, ' ')
            .append(at(record.multiColors, i))
            .append(1, ':')
            .append(at(record.activeSubs, i));
    }
    out += '\n';
}

void append(std::string& out, MaterialRecord const& record) {
    appendHead(out, "material", idText(record.id), record.name);
    if (!record.places.empty()) {
        out += " places";
    }
    for (MaterialPlace const& place : record.places) {
        appendText(out.append(1, ' ').append(std::to_string(place.node)).append(1, '.'),
                   place.parameter);
        out.append("->").append(idText(place.color));
    }
    if (!record.cmfValues.empty()) {
        out += " cmf";
    }
    for (auto const& [key, value] : record.cmfValues) {
        appendText(out.append(1, ' '), key);
        appendText(out.append(1, '='), value);
    }
    if (!record.metadata.empty()) {
        appendText(out.append(" metadata "), record.metadata);
    }
    if (!record.items.empty()) {
        out += " items";
    }
    for (unsigned const item : record.items) {
        out.append(1, ' ').append(std::to_string(item));
    }
    out += '\n';
}

void append(std::string& out, nyx::LightLayerId id, LightLayer const& layer) {
    appendHead(out, "light layer", idText(id), layer.name);
    appendFlags(out, layer.flags.bits());
    out += '\n';
}

void append(std::string& out, GroupItem const& item, LightLayers const& layers) {
    ItemRecord const& record = item.record;
    char const* const kind = record.kind == ItemKind::Group   ? "group"
                             : record.kind == ItemKind::Light ? "light"
                                                              : "object";
    appendHead(out, kind, idText(record.id), record.name);
    if (record.parent.isValid()) {
        out.append(" in ").append(idText(record.parent));
    }
    if (record.material.isValid()) {
        out.append(" material ").append(idText(record.material));
    }
    if (item.is_light()) {
        out.append(" layer ").append(idText(layers.layerOf(item.object_id())));
        out.append(item.record.unlisted ? " unlisted" : "");
    }
    out += '\n';
}

/// Of what is painted on a layer the number of tiles.
void append(std::string& out, Surface const& surface) {
    SurfaceInfo const info = surface.info();
    appendHead(out, "surface", idText(info.id), info.name);
    out.append(1, ' ').append(std::to_string(info.resolution));
    out.append(info.deleted ? " deleted" : "");
    out.append(" edit ").append(std::to_string(info.editLayer)).append(1, '\n');
    for (auto const& [layer, pixels] : surface.layersWithPixels()) {
        appendHead(out, "  layer", std::to_string(layer.id), layer.name);
        out.append(" blend ").append(std::to_string(static_cast<int>(layer.mode)));
        out.append(layer.deleted ? " deleted" : "").append(layer.visible ? "" : " hidden");
        nyxColor_rgba const& ground = layer.background;
        for (float const part : {ground.r, ground.g, ground.b, ground.a}) {
            out.append(1, ' ').append(numberText(part));
        }
        out.append(" tiles ").append(std::to_string(pixels.tileCount())).append(1, '\n');
    }
}

} // namespace

std::string dumpScene(nyxScene const& scene) {
    std::string out = "unit scale " + numberText(scene.unitScale()) + "\nactive colorway " +
                      idText(scene.colorways().active()) + '\n';
    scene.colors().forEach([&out](ColorRecord const& record) { append(out, record); });
    scene.colorways().forEach([&out](ColorwayRecord const& record) { append(out, record); });
    scene.materials().forEach([&out](MaterialRecord const& record) { append(out, record); });
    LightLayers const& layers = scene.lightLayers();
    out.append("environment light mask ")
        .append(std::to_string(layers.environmentMask()))
        .append(1, '\n');
    for (nyx::LightLayerId const id : layers.ids()) {
        append(out, id, *layers.find(id));
    }
    scene.items().forEach([&](GroupItem const& item) { append(out, item, layers); });
    for (Surface const* const surface : scene.surfaces().all()) {
        append(out, *surface);
    }
    return out;
}

} // namespace nyx::embedded
