#include "store/MaterialStore.h"

#include <utility>

namespace nyx::embedded {

nyx::MaterialId MaterialStore::add(MaterialRecord record) {
    nyx::MaterialId const id(contents_.records.idFor(record.id.toUint()));
    record.id = id;
    nyxMaterial const* const added = contents_.records.emplace(id.toUint(), std::move(record));
    if (!added) {
        return {};
    }
    std::uint32_t position = 0;
    for (MaterialPlace const& place : added->places) {
        contents_.places.add(id, place.node, place.parameter, position++);
        contents_.uses.bind(place.color, id);
    }
    return id;
}

MaterialPlace* MaterialStore::findPlace(nyxMaterial& material, std::uint32_t node,
                                        std::string const& parameter) {
    auto const position =
        contents_.places.find(material.id, node, parameter, [&](std::uint32_t at) {
            return at < material.places.size() && material.places[at].node == node &&
                   material.places[at].parameter == parameter;
        });
    return position ? &material.places[*position] : nullptr;
}

bool MaterialStore::bindColor(nyx::MaterialId id, std::uint32_t node, std::string const& parameter,
                              nyx::ColorId color, bool make) {
    nyxMaterial* const material = find(id);
    if (!material) {
        return false;
    }
    MaterialPlace* place = findPlace(*material, node, parameter);
    if (!place) {
        if (!make) {
            return false;
        }
        auto const position = static_cast<std::uint32_t>(material->places.size());
        place = &material->places.emplace_back(MaterialPlace{node, parameter, {}});
        contents_.places.add(id, node, parameter, position);
    }
    contents_.uses.bind(color, id);
    contents_.uses.unbind(std::exchange(place->color, color), id);
    return true;
}

void MaterialStore::takeContents(MaterialStore& fresh) {
    std::swap(contents_, fresh.contents_);
    skipIdsBelow(fresh.nextId());
}

} // namespace nyx::embedded
