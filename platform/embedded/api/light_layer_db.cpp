// The light-layer database: that of a scene works on the scene's layers, any other one on its own.

#include "store/LightLayers.h"
#include "store/Scene.h"
#include "store/SceneLights.h"

#include "nyxembedded/Journal.h"
#include "nyxrender/nyxLight_layer_db.h"

#include <utility>

using nyx::embedded::Journal;
using nyx::embedded::LightLayer;
using nyx::embedded::LightLayers;

namespace {

std::string textOf(char const* text) { return text ? text : std::string(); }

template <class Id>
nyx::Unique_array<Id> arrayOf(std::vector<Id> const& ids) {
    return {ids.data(), ids.size()};
}

} // namespace

struct nyxLight_layer_db::Data {
    nyxScene* scene = nullptr; ///< that this is the database of
    LightLayers own;
    LightLayers* layers = &own;
    /// The scene's journal while there is a scene: that of this database, or the one that a copy
    /// was last made equal to.
    std::shared_ptr<Journal*> sceneJournal;
    std::weak_ptr<Journal*> journal;

    template <class... Parts>
    void write(char const* call, Parts const&... parts) const {
        std::shared_ptr<Journal*> const to = journal.lock();
        if (to && (*to)->isRecording()) {
            std::string const line =
                std::string(scene ? "light_layers." : "light_layers_copy.") + call;
            (*to)->write(line.c_str(), parts...);
        }
    }
};

nyxLight_layer_db::nyxLight_layer_db() : data_(std::make_unique<Data>()) {}

nyxLight_layer_db::nyxLight_layer_db(nyxScene& scene) : nyxLight_layer_db() {
    data_->scene = &scene;
    data_->layers = &scene.lightLayers();
    data_->sceneJournal = std::make_shared<Journal*>(&scene.journal());
    data_->journal = data_->sceneJournal;
}

nyxLight_layer_db::~nyxLight_layer_db() = default;

nyx::LightLayerId nyxLight_layer_db::create_layer(char const* name, nyx::LightLayerId wanted) {
    data_->write("create_layer", textOf(name), wanted);
    if (data_->scene && data_->scene->faults().failCreations > 0) {
        --data_->scene->faults().failCreations;
        return {};
    }
    return data_->layers->add({textOf(name), {}}, wanted);
}

void nyxLight_layer_db::delete_layer(nyx::LightLayerId id) {
    data_->write("delete_layer", id);
    if (data_->scene) {
        data_->scene->lights().markDeleted(id);
    } else {
        data_->layers->markDeleted(id);
    }
}

void nyxLight_layer_db::delete_n_remap_layer(nyxScene& scene, nyx::LightLayerId id) {
    data_->write("delete_n_remap_layer", id);
    scene.lights().follow(*data_->layers, data_->layers->markDeleted(id));
}

void nyxLight_layer_db::clone_layer(nyx::LightLayerId target, nyx::LightLayerId source) {
    data_->write("clone_layer", target, source);
    data_->layers->copyLayer(target, source);
}

void nyxLight_layer_db::add_lights(nyx::Span<nyx::ObjectId> lights, nyx::LightLayerId id) {
    data_->write("add_lights", lights, id);
    if (data_->scene) {
        data_->scene->lights().put(lights, id);
    } else {
        data_->layers->put(lights, id);
    }
}

void nyxLight_layer_db::remove_lights(nyx::Span<nyx::ObjectId> lights, nyx::LightLayerId id) {
    data_->write("remove_lights", lights, id);
    if (data_->scene) {
        data_->scene->lights().take(lights, id);
    } else {
        data_->layers->take(lights, id);
    }
}

void nyxLight_layer_db::set_flags(nyx::LightLayerId id, nyx::Flags<layerFlags> flags) {
    data_->write("set_flags", id, flags.bits());
    data_->layers->setFlags(id, flags);
}

nyx::Flags<layerFlags> nyxLight_layer_db::flags(nyx::LightLayerId id) const {
    data_->write("flags", id);
    LightLayer const* const layer = data_->layers->find(id);
    return layer ? layer->flags : nyx::Flags<layerFlags>();
}

std::uint32_t nyxLight_layer_db::layer_bitmask(nyx::LightLayerId id) const {
    data_->write("layer_bitmask", id);
    return data_->layers->mask(id);
}

nyx::LightLayerId nyxLight_layer_db::layer_id_from_mask(std::uint32_t mask) const {
    data_->write("layer_id_from_mask", mask);
    return data_->layers->layerOf(mask);
}

std::uint32_t nyxLight_layer_db::environment_light_mask() const {
    data_->write("environment_light_mask");
    return data_->layers->environmentMask();
}

std::string nyxLight_layer_db::find_unique_name(char const* text) const {
    data_->write("find_unique_name", textOf(text));
    return data_->layers->uniqueName(textOf(text));
}

char const* nyxLight_layer_db::get_layer_name(nyx::LightLayerId id) const {
    data_->write("get_layer_name", id);
    LightLayer const* const layer = data_->layers->find(id);
    return layer ? layer->name.c_str() : nullptr;
}

void nyxLight_layer_db::set_layer_name(nyx::LightLayerId id, char const* name) {
    data_->write("set_layer_name", id, textOf(name));
    data_->layers->setName(id, textOf(name));
}

void nyxLight_layer_db::sync(nyxLight_layer_db const* source) {
    if (!source || source == this) {
        return;
    }
    if (!data_->scene) {
        data_->journal = source->data_->journal;
        *data_->layers = *source->data_->layers;
    } else {
        data_->scene->lights().replace(*source->data_->layers);
    }
    data_->write("sync");
}

nyx::Unique_array<nyx::LightLayerId> nyxLight_layer_db::get_layers() const {
    data_->write("get_layers");
    return arrayOf(data_->layers->liveIds());
}

nyx::Unique_array<nyx::ObjectId> nyxLight_layer_db::get_lights(nyx::LightLayerId id) const {
    data_->write("get_lights", id);
    return arrayOf(data_->layers->lights(id));
}

bool nyxLight_layer_db::contains(nyx::LightLayerId id, nyx::ObjectId light) const {
    data_->write("contains", id, light);
    return data_->layers->find(id) && data_->layers->layerOf(light) == id;
}

unsigned nyxLight_layer_db::get_layer_count() const {
    data_->write("get_layer_count");
    return static_cast<unsigned>(data_->layers->liveIds().size());
}

nyxLight_layer_db* nyx_light_layer_db_get(nyxScene const& scene) {
    return scene.lights().database();
}
