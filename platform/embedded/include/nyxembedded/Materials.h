#pragma once

#include "nyxembedded/MaterialRecord.h"
#include "nyxrender/Export.h"
#include "nyxrender/Ids.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace nyx::embedded {

class ItemTree;
class MaterialStore;

/// The materials of a renderer's scene; Renderer::materials() has them. Building notifies nobody.
/// Main thread.
class NYXRENDER_EXPORT Materials {
public:
    Materials(MaterialStore& materials, ItemTree const& items)
        : materials_(materials), items_(items) {}

    /// A material without places. The name is taken as it is.
    nyx::MaterialId add(std::string const& name);
    /// Makes a place (or finds it) and binds it to a colour, which need not exist; false for an
    /// unknown material.
    bool bindColor(nyx::MaterialId id, std::uint32_t node, std::string const& parameter,
                   nyx::ColorId color);
    /// Binds a place that the material has; false for any other and for an unknown material.
    bool rebindColor(nyx::MaterialId id, std::uint32_t node, std::string const& parameter,
                     nyx::ColorId color);
    /// What nyx_material_items() answers; false for an unknown material.
    bool setItems(nyx::MaterialId id, std::vector<unsigned> items);

    /// In creation order.
    [[nodiscard]] std::vector<nyx::MaterialId> ids() const;
    /// The first of a name; the invalid id when there is none.
    [[nodiscard]] nyx::MaterialId find(std::string const& name) const;
    [[nodiscard]] bool contains(nyx::MaterialId id) const;
    /// A copy; nothing for an unknown id.
    [[nodiscard]] std::optional<MaterialRecord> record(nyx::MaterialId id) const;
    /// Whether any object has the material, which need not exist.
    [[nodiscard]] bool isUsed(nyx::MaterialId id) const;

private:
    MaterialStore& materials_;
    ItemTree const& items_;
};

} // namespace nyx::embedded
