#include "store/MaterialStore.h"
#include "store/Scene.h"

#include "nyxrender/nyx_material.h"

namespace {

template <class... Parts>
void journal(nyxMaterial const& material, char const* call, Parts const&... parts) {
    if (material.journal) {
        material.journal->write(call, material.id, parts...);
    }
}

} // namespace

nyxMaterial* nyx_material_from_id(nyxScene* scene, nyx::MaterialId id) {
    if (!scene) {
        return nullptr;
    }
    scene->journal().write("nyx_material_from_id", id);
    nyxMaterial* const material = scene->materials().find(id);
    if (material) {
        material->journal = &scene->journal();
    }
    return material;
}

char const* nyx_material_name(nyxMaterial const& material) {
    journal(material, "nyx_material_name");
    return material.name.c_str();
}

void nyx_material_cmf_values(nyxMaterial const& material,
                             std::function<void(char const* key, char const* value)> const& visit) {
    journal(material, "nyx_material_cmf_values");
    // A copy: the visitor may set values.
    for (auto const& [key, value] : std::map(material.cmfValues)) {
        visit(key.c_str(), value.c_str());
    }
}

void nyx_material_clear_cmf_values(nyxMaterial& material) {
    journal(material, "nyx_material_clear_cmf_values");
    material.cmfValues.clear();
}

void nyx_material_set_cmf_value(nyxMaterial& material, char const* key, char const* value) {
    journal(material, "nyx_material_set_cmf_value", key, value);
    if (key) {
        material.cmfValues[key] = value ? value : "";
    }
}

char const* nyx_material_metadata(nyxMaterial const& material) {
    journal(material, "nyx_material_metadata");
    return material.metadata.c_str();
}

void nyx_material_set_metadata(nyxMaterial& material, char const* json) {
    journal(material, "nyx_material_set_metadata", json);
    material.metadata = json ? json : "";
}

nyx::Span<unsigned> nyx_material_items(nyxMaterial const& material) {
    journal(material, "nyx_material_items");
    return material.items;
}
