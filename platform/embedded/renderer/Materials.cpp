#include "nyxembedded/Materials.h"

#include "renderer/upToZero.h"
#include "store/ItemTree.h"
#include "store/MaterialStore.h"

#include <utility>

namespace nyx::embedded {

nyx::MaterialId Materials::add(std::string const& name) {
    MaterialRecord record;
    record.name = upToZero(name);
    return materials_.add(std::move(record));
}

bool Materials::bindColor(nyx::MaterialId id, std::uint32_t node, std::string const& parameter,
                          nyx::ColorId color) {
    return materials_.bindColor(id, node, upToZero(parameter), color, true);
}

bool Materials::rebindColor(nyx::MaterialId id, std::uint32_t node, std::string const& parameter,
                            nyx::ColorId color) {
    return materials_.bindColor(id, node, upToZero(parameter), color, false);
}

bool Materials::setItems(nyx::MaterialId id, std::vector<unsigned> items) {
    nyxMaterial* const record = materials_.find(id);
    if (!record) {
        return false;
    }
    record->items = std::move(items);
    return true;
}

std::vector<nyx::MaterialId> Materials::ids() const {
    std::vector<nyx::MaterialId> ids;
    materials_.forEach([&](nyxMaterial const& record) { ids.push_back(record.id); });
    return ids;
}

nyx::MaterialId Materials::find(std::string const& name) const {
    nyx::MaterialId found;
    materials_.forEach([&](nyxMaterial const& record) {
        found = !found.isValid() && record.name == name ? record.id : found;
    });
    return found;
}

bool Materials::contains(nyx::MaterialId id) const { return materials_.find(id) != nullptr; }

std::optional<MaterialRecord> Materials::record(nyx::MaterialId id) const {
    MaterialRecord const* const record = materials_.find(id);
    return record ? std::optional(*record) : std::nullopt;
}

bool Materials::isUsed(nyx::MaterialId id) const { return items_.isMaterialUsed(id); }

} // namespace nyx::embedded
