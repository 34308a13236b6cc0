#include "lightlayers/sceneLights.h"

#include "lightlayers/IdSet.h"

#include "nyxrender/nyxGroup_item.h"
#include "nyxrender/nyxLight_layer_db.h"
#include "nyxrender/nyxScene_hierarchy.h"
#include "nyxrender/nyxShader.h"

#include <algorithm>
#include <cstddef>
#include <unordered_map>

namespace zsg {

namespace {

/// Asked of a shader: whether its object is kept out of the lists of light layers.
constexpr unsigned unlistedQuery = 4100;

/// Visits each light among the items and below them once. With a stack of its own: groups may be
/// nested deeper than calls may.
template <class Visit>
void forEachLight(nyx::Span<nyxGroup_item*> items, Visit const& visit) {
    IdSet visited;
    std::vector<nyxGroup_item const*> waiting;
    waiting.reserve(1024);
    for (nyxGroup_item const* const listed : items) {
        waiting.push_back(listed);
        while (!waiting.empty()) {
            nyxGroup_item const& item = *waiting.back();
            waiting.pop_back();
            if (!visited.insert(item.id().toUint())) {
                continue;
            }
            if (item.is_light()) {
                visit(item);
            }
            nyx::Span<nyxGroup_item*> const children = item.children();
            waiting.insert(waiting.end(), children.begin(), children.end());
        }
    }
}

bool isListed(nyxGroup_item const& item) {
    nyxShader const* const shader = item.shader();
    return !shader || !shader->info(unlistedQuery);
}

template <class Value>
void sortUnique(std::vector<Value>& values) {
    std::ranges::sort(values);
    values.erase(std::unique(values.begin(), values.end()), values.end());
}

} // namespace

std::vector<nyx::ObjectId> lightsOfItems(nyx::Span<nyxGroup_item*> items) {
    std::vector<nyx::ObjectId> lights;
    std::vector<nyxGroup_item*> groups;
    for (nyxGroup_item* const item : items) {
        if (item->is_light()) {
            lights.push_back(item->object_id());
        } else {
            groups.push_back(item);
        }
    }
    forEachLight(groups, [&](nyxGroup_item const& light) { lights.push_back(light.object_id()); });
    sortUnique(lights);
    return lights;
}

std::vector<std::uint32_t> masksOfItems(nyx::Span<nyxGroup_item*> items) {
    std::vector<std::uint32_t> masks;
    forEachLight(items, [&](nyxGroup_item const& light) {
        nyxShader const* const shader = light.shader();
        std::uint32_t const mask = shader ? shader->light_layer_mask() : 0;
        // Neighbours are mostly in one layer.
        if (shader && (masks.empty() || masks.back() != mask)) {
            masks.push_back(mask);
        }
    });
    sortUnique(masks);
    return masks;
}

std::vector<nyx::ObjectId> objectsWithMask(nyxScene_hierarchy const* hierarchy,
                                           std::uint32_t mask) {
    std::vector<nyx::ObjectId> objects;
    if (hierarchy) {
        hierarchy->walk([&](nyxGroup_item const& item) {
            if (item.light_layer_mask() == mask && isListed(item)) {
                objects.push_back(item.object_id());
            }
        });
    }
    return objects;
}

std::map<nyx::LightLayerId, std::vector<nyx::GroupItemId>>
lightsByLayer(nyxScene_hierarchy const* hierarchy, nyxLight_layer_db const& layers) {
    std::map<nyx::LightLayerId, std::vector<nyx::GroupItemId>> lights;
    if (!hierarchy) {
        return lights;
    }
    // Each mask is asked for once; null stands for one that names no layer.
    std::unordered_map<std::uint32_t, std::vector<nyx::GroupItemId>*> listOfMask;
    hierarchy->walk([&](nyxGroup_item const& item) {
        if (!item.is_light() || !isListed(item)) {
            return;
        }
        auto const [entry, isNew] = listOfMask.try_emplace(item.light_layer_mask(), nullptr);
        if (isNew) {
            nyx::LightLayerId const layer = layers.layer_id_from_mask(entry->first);
            entry->second = layer.isValid() ? &lights[layer] : nullptr;
        }
        if (entry->second) {
            entry->second->push_back(item.id());
        }
    });
    return lights;
}

} // namespace zsg
