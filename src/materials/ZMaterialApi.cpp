#include "materials/ZMaterialApi.h"

#include "materials/logging.h"
#include "materials/metadataText.h"
#include "zsg/materials/ZMaterialDescriptor.h"

#include "nyxrender/nyxRT_api.h"
#include "nyxrender/nyx_material.h"

#include <map>
#include <string>
#include <vector>

namespace zsg {

namespace {

std::string textOf(char const* text) { return text ? text : std::string(); }

std::map<std::string, std::string> cmfValuesOf(nyxMaterial const& material) {
    std::map<std::string, std::string> values;
    nyx_material_cmf_values(material, [&values](char const* key, char const* value) {
        values.insert_or_assign(textOf(key), textOf(value));
    });
    return values;
}

/// In place of all that the material had.
void setCMFValues(nyxMaterial& material, std::map<std::string, std::string> const& values) {
    nyx_material_clear_cmf_values(material);
    for (auto const& [key, value] : values) {
        nyx_material_set_cmf_value(material, key.c_str(), value.c_str());
    }
}

} // namespace

ZMaterialApi::ZMaterialApi(nyxRT_api* rtApi) : rtApi_(rtApi) {}

ZMaterialApi::~ZMaterialApi() = default;

nyxMaterial* ZMaterialApi::material(MaterialId id) const {
    return rtApi_ ? nyx_material_from_id(rtApi_->scene(), id) : nullptr;
}

std::unique_ptr<IMaterialDescriptor> ZMaterialApi::descriptor(MaterialId id) const {
    nyxMaterial const* const found = material(id);
    if (!found) {
        return nullptr;
    }
    nyx::Span<unsigned> const items = nyx_material_items(*found);
    auto made = std::make_unique<ZMaterialDescriptor>(
        id, std::vector<unsigned>(items.begin(), items.end()));
    made->values() = cmfValuesOf(*found);
    bool readable = true;
    made->setMetadata(metadataFromText(textOf(nyx_material_metadata(*found)), readable));
    if (!readable) {
        qCWarning(zsgMaterials) << "The metadata of material" << id.toUint()
                                << "is no JSON, or nested too deeply; it is left alone.";
    }
    return made;
}

QString ZMaterialApi::materialName(MaterialId id) const {
    nyxMaterial const* const found = material(id);
    return found ? QString::fromUtf8(nyx_material_name(*found)) : QString();
}

bool ZMaterialApi::applyDescriptor(IMaterialDescriptor const& descriptor) {
    nyxMaterial* const found = material(descriptor.id());
    if (!found) {
        return false;
    }
    // All that can refuse comes first. Equal metadata keeps its spelling, and what nobody could
    // read is not taken for "none".
    std::string const metadata = metadataToText(descriptor.metadata());
    bool readable = true;
    bool const sameMetadata =
        metadata ==
        metadataToText(metadataFromText(textOf(nyx_material_metadata(*found)), readable));

    std::map<std::string, std::string> const before = cmfValuesOf(*found);
    try {
        setCMFValues(*found, descriptor.values());
        if (!sameMetadata) {
            nyx_material_set_metadata(*found, metadata.c_str());
        }
    } catch (...) {
        setCMFValues(*found, before); // memory ran out: half a description is none
        throw;
    }
    return true;
}

} // namespace zsg
