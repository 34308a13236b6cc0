#include "workbench/app/EmbeddedContents.h"

#include "host/Host.h"
#include "zsg/materials/ISceneMaterialManager.h"

#include <map>

namespace workbench {

std::vector<SceneContents::Item> EmbeddedContents::items() const {
    nyx::embedded::Items const& items = host_.renderer().items();
    std::map<nyx::GroupItemId, std::vector<Item>> below;
    std::size_t count = 0;
    for (nyx::GroupItemId const id : items.ids()) {
        auto const record = items.record(id);
        below[record->parent].push_back({id, record->parent, QString::fromStdString(record->name),
                                         record->isLight(), record->unlisted});
        ++count;
    }
    // Depth first without recursion: groups may be nested as deep as they like.
    std::vector<Item> ordered;
    ordered.reserve(count);
    std::vector<Item> waiting;
    auto const putOff = [&](nyx::GroupItemId parent) {
        if (auto const found = below.find(parent); found != below.end()) {
            waiting.insert(waiting.end(), found->second.rbegin(), found->second.rend());
        }
    };
    putOff({});
    while (!waiting.empty()) {
        ordered.push_back(waiting.back());
        waiting.pop_back();
        putOff(ordered.back().id);
    }
    return ordered;
}

std::vector<nyx::MaterialId> EmbeddedContents::materials() const {
    return host_.renderer().materials().ids();
}

std::vector<SceneContents::Place> EmbeddedContents::places(nyx::MaterialId material) const {
    std::vector<Place> places;
    if (auto const record = host_.renderer().materials().record(material)) {
        for (auto const& place : record->places) {
            places.push_back({place.node, QString::fromStdString(place.parameter), place.color});
        }
    }
    return places;
}

zsg::IMaterialEdit* EmbeddedContents::materialEdit(nyx::MaterialId material) const {
    return host_.materialManager().createMaterialEdit(material);
}

} // namespace workbench
