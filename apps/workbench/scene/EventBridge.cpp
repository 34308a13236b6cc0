#include "workbench/scene/EventBridge.h"

#include "zsg/core/Events.h"

#include <algorithm>
#include <utility>

namespace workbench {

namespace {

template <class Id>
void makeSet(std::vector<Id>& ids) {
    std::ranges::sort(ids);
    ids.erase(std::unique(ids.begin(), ids.end()), ids.end());
}

template <class Kind>
Kind const& as(zsg::Event const* event) {
    return static_cast<Kind const&>(*event);
}

} // namespace

EventBridge::EventBridge(zsg::IEventQueue& queue, std::function<void()> onFirst)
    : onFirst_(std::move(onFirst)),
      subscription_(queue, *this,
                    {zsg::EventType::MaterialUpdated, zsg::EventType::MaterialDescriptionChanged,
                     zsg::EventType::CMFSchemaChanged, zsg::EventType::PaintLayersUpdated,
                     zsg::EventType::ColorCreated, zsg::EventType::ColorIdChange,
                     zsg::EventType::ColorUpdated, zsg::EventType::ColorSynced,
                     zsg::EventType::ColorwaySynced, zsg::EventType::ColorwayUpdated,
                     zsg::EventType::LightLayerUpdated, zsg::EventType::LightLayerSynced}) {}

void EventBridge::onEvent(zsg::Event const* event) {
    bool const isFirst = changes_.isEmpty();
    switch (event->type()) {
    case zsg::EventType::PaintLayersUpdated:
        changes_.surfaces.push_back(as<zsg::PaintLayersUpdatedEvent>(event).surfaceId());
        break;
    case zsg::EventType::ColorCreated:
        changes_.colors.push_back(as<zsg::ColorEvent>(event).colorId());
        break;
    case zsg::EventType::ColorIdChange:
        changes_.colors.push_back(as<zsg::ColorIdChangeEvent>(event).oldId());
        changes_.colors.push_back(as<zsg::ColorIdChangeEvent>(event).newId());
        break;
    case zsg::EventType::ColorUpdated:
        changes_.colors.push_back(as<zsg::ColorUpdatedEvent>(event).colorId());
        break;
    case zsg::EventType::ColorSynced:
        changes_.colors.push_back(as<zsg::ColorSyncedEvent>(event).colorId());
        break;
    case zsg::EventType::ColorwaySynced:
        changes_.colorways.push_back(as<zsg::ColorwaySyncedEvent>(event).colorwayId());
        break;
    case zsg::EventType::ColorwayUpdated:
        changes_.colorways.push_back(as<zsg::ColorwayUpdatedEvent>(event).colorwayId());
        break;
    case zsg::EventType::LightLayerUpdated:
    case zsg::EventType::LightLayerSynced:
        changes_.lightLayers = true;
        break;
    default:
        changes_.materials = true;
    }
    if (isFirst) {
        onFirst_();
    }
}

Changes EventBridge::take() {
    makeSet(changes_.colors);
    makeSet(changes_.colorways);
    makeSet(changes_.surfaces);
    return std::exchange(changes_, {});
}

} // namespace workbench
