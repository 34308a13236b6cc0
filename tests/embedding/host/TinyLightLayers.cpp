#include "TinyScene.h"

#include <algorithm>

struct nyxLight_layer_db::Data {
    struct Layer {
        std::string name;
        std::uint32_t flags = 0;
    };
    nyxScene* scene = nullptr; ///< null in a copy
    std::map<nyx::LightLayerId, Layer> layers;
    std::map<nyx::ObjectId, nyx::LightLayerId> lights;

    static bool isDeleted(Layer const& layer) {
        return (layer.flags & static_cast<std::uint32_t>(layerFlags::Deleted)) != 0;
    }
    Layer const* find(nyx::LightLayerId id) const {
        auto const found = layers.find(id);
        return found == layers.end() ? nullptr : &found->second;
    }
    Layer* find(nyx::LightLayerId id) { return const_cast<Layer*>(std::as_const(*this).find(id)); }
    void put(nyx::ObjectId light, nyx::LightLayerId layer) {
        lights[light] = layer;
        if (TinyLight* const shader = scene ? scene->light(light) : nullptr) {
            shader->mask = 1u << (layer.toUint() - 1);
        }
    }
    void remove(nyx::LightLayerId id) {
        Layer* const layer = id == nyx::LightLayerId(1) ? nullptr : find(id);
        if (layer) {
            layer->flags |= static_cast<std::uint32_t>(layerFlags::Deleted);
            for (auto const& [light, current] : std::map(lights)) {
                if (current == id) {
                    put(light, nyx::LightLayerId(1));
                }
            }
        }
    }
};

nyxLight_layer_db::nyxLight_layer_db() : data_(std::make_unique<Data>()) {}
nyxLight_layer_db::nyxLight_layer_db(nyxScene& scene) : nyxLight_layer_db() {
    data_->scene = &scene;
    data_->layers[nyx::LightLayerId(1)].name = "Default";
}
nyxLight_layer_db::~nyxLight_layer_db() = default;

nyx::LightLayerId nyxLight_layer_db::create_layer(char const* name, nyx::LightLayerId wanted) {
    auto const next = static_cast<std::uint32_t>(data_->layers.size() + 1);
    nyx::LightLayerId const id = wanted.isValid() ? wanted : nyx::LightLayerId(next);
    if (id.toUint() > 32 || data_->find(id)) {
        return {};
    }
    data_->layers[id].name = name ? name : "";
    return id;
}
void nyxLight_layer_db::delete_layer(nyx::LightLayerId id) { data_->remove(id); }
void nyxLight_layer_db::delete_n_remap_layer(nyxScene& scene, nyx::LightLayerId id) {
    scene.calls.push_back("delete_n_remap_layer " + std::to_string(id.toUint()));
    data_->remove(id);
}
void nyxLight_layer_db::clone_layer(nyx::LightLayerId, nyx::LightLayerId) {}
void nyxLight_layer_db::add_lights(nyx::Span<nyx::ObjectId> lights, nyx::LightLayerId id) {
    for (nyx::ObjectId const light : lights) {
        data_->put(light, id);
    }
}
void nyxLight_layer_db::remove_lights(nyx::Span<nyx::ObjectId> lights, nyx::LightLayerId id) {
    for (nyx::ObjectId const light : lights) {
        auto const found = data_->lights.find(light);
        if (found != data_->lights.end() && found->second == id) {
            data_->put(light, nyx::LightLayerId(1));
        }
    }
}
void nyxLight_layer_db::set_flags(nyx::LightLayerId id, nyx::Flags<layerFlags> flags) {
    if (auto* const layer = data_->find(id)) {
        layer->flags = flags.bits();
    }
}
nyx::Flags<layerFlags> nyxLight_layer_db::flags(nyx::LightLayerId id) const {
    auto const* const layer = std::as_const(*data_).find(id);
    return nyx::Flags<layerFlags>::fromBits(layer ? layer->flags : 0);
}
std::uint32_t nyxLight_layer_db::layer_bitmask(nyx::LightLayerId id) const {
    return data_->find(id) ? 1u << (id.toUint() - 1) : 0;
}
nyx::LightLayerId nyxLight_layer_db::layer_id_from_mask(std::uint32_t mask) const {
    for (auto const& [id, layer] : data_->layers) {
        if (mask == 1u << (id.toUint() - 1)) {
            return id;
        }
    }
    return {};
}
std::uint32_t nyxLight_layer_db::environment_light_mask() const { return 1; }
std::string nyxLight_layer_db::find_unique_name(char const* text) const {
    std::string name = text ? text : "";
    auto const isTaken = [&](auto const& entry) { return entry.second.name == name; };
    for (int n = 1; std::ranges::any_of(data_->layers, isTaken); ++n) {
        name = std::string(text) + ' ' + std::to_string(n);
    }
    return name;
}
char const* nyxLight_layer_db::get_layer_name(nyx::LightLayerId id) const {
    auto const* const layer = data_->find(id);
    return layer ? layer->name.c_str() : nullptr;
}
void nyxLight_layer_db::set_layer_name(nyx::LightLayerId id, char const* name) {
    if (auto* const layer = data_->find(id)) {
        layer->name = name ? name : "";
    }
}
void nyxLight_layer_db::sync(nyxLight_layer_db const* source) {
    if (source) {
        data_->layers = source->data_->layers;
        data_->lights = source->data_->lights;
    }
}
nyx::Unique_array<nyx::LightLayerId> nyxLight_layer_db::get_layers() const {
    std::vector<nyx::LightLayerId> ids;
    for (auto const& [id, layer] : data_->layers) {
        if (!Data::isDeleted(layer)) {
            ids.push_back(id);
        }
    }
    return {ids.data(), ids.size()};
}
nyx::Unique_array<nyx::ObjectId> nyxLight_layer_db::get_lights(nyx::LightLayerId id) const {
    std::vector<nyx::ObjectId> ids;
    for (auto const& [light, layer] : data_->lights) {
        if (layer == id) {
            ids.push_back(light);
        }
    }
    return {ids.data(), ids.size()};
}
bool nyxLight_layer_db::contains(nyx::LightLayerId id, nyx::ObjectId light) const {
    auto const found = data_->lights.find(light);
    return found != data_->lights.end() && found->second == id;
}
unsigned nyxLight_layer_db::get_layer_count() const {
    return static_cast<unsigned>(get_layers().size());
}

nyxLight_layer_db* nyx_light_layer_db_get(nyxScene const& scene) { return scene.layers.get(); }
