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
    std::map<std::string, std::string>& values = made->values();
    nyx_material_cmf_values(*found, [&values](char const* key, char const* value) {
        values.insert_or_assign(textOf(key), textOf(value));
    });
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

    nyx_material_clear_cmf_values(*found);
    for (auto const& [key, value] : descriptor.values()) {
        nyx_material_set_cmf_value(*found, key.c_str(), value.c_str());
    }
    if (!sameMetadata) {
        nyx_material_set_metadata(*found, metadata.c_str());
    }
    return true;
}

} // namespace zsg
