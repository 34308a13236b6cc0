#include "workbench/lights/lightEdits.h"

#include "workbench/lights/LightLayerCommands.h"
#include "workbench/scene/Scene.h"
#include "workbench/scene/ScopedMacro.h"
#include "zsg/lightlayers/ILightLayerApi.h"
#include "zsg/lightlayers/ILightLayerController.h"

#include "zcore/ZUndoStack.h"

#include <QObject>

#include <algorithm>
#include <memory>
#include <string>

namespace workbench {

namespace {

/// So many bits has the mask that says which layer a light is in.
constexpr std::uint32_t mostLayers = 32;
constexpr auto deletedBit = static_cast<std::uint32_t>(layerFlags::Deleted);

zsg::ILightLayerApi& apiOf(Scene const& scene) { return *scene.lightLayers()->lightLayerApi(); }

QString nameOf(Scene const& scene, nyx::LightLayerId layer) {
    return QString::fromStdString(apiOf(scene).layerName(layer));
}

void push(Scene& scene, std::unique_ptr<ZUndoCommand> command) {
    scene.endDrags();
    scene.undoStack().push(command.release());
}

std::vector<nyx::GroupItemId> itemsOf(std::vector<nyx::ObjectId> const& lights) {
    std::vector<nyx::GroupItemId> items;
    items.reserve(lights.size());
    for (nyx::ObjectId const light : lights) {
        items.emplace_back(light.toUint());
    }
    return items;
}

bool refuses(Scene& scene) {
    if (!scene.lightLayers()) {
        return true;
    }
    auto const reason = noMoreLightLayers(scene);
    if (reason) {
        scene.say(*reason);
    }
    return reason.has_value();
}

} // namespace

std::vector<nyx::LightLayerId> allLightLayers(Scene const& scene) {
    std::vector<nyx::LightLayerId> layers;
    for (std::uint32_t number = 1; scene.lightLayers() && number <= mostLayers; ++number) {
        if (nyx::LightLayerId const id(number); !apiOf(scene).layerName(id).empty()) {
            layers.push_back(id);
        }
    }
    return layers;
}

bool isDeleted(Scene const& scene, nyx::LightLayerId layer) {
    return scene.lightLayers() && apiOf(scene).flags(layer).test(deletedBit);
}

std::optional<QString> noMoreLightLayers(Scene const& scene) {
    if (allLightLayers(scene).size() < mostLayers) {
        return std::nullopt;
    }
    return QObject::tr(
        "A scene has 32 light layers at most, and deleted ones keep their place. Restore "
        "one of those instead.");
}

nyx::LightLayerId createLightLayer(Scene& scene) {
    if (refuses(scene)) {
        return {};
    }
    scene.endDrags();
    return scene.lightLayers()->createLayer(QObject::tr("Layer").toStdString());
}

nyx::LightLayerId cloneLightLayer(Scene& scene, nyx::LightLayerId source) {
    if (refuses(scene) || !source.isValid()) {
        return {};
    }
    zsg::ILightLayerApi& api = apiOf(scene);
    std::uint32_t const flags = api.flags(source).bits() & ~deletedBit;
    ScopedMacro const macro(scene,
                            QObject::tr("Duplicate Light Layer (%1)").arg(nameOf(scene, source)));
    nyx::LightLayerId const layer = scene.lightLayers()->createLayer(api.layerName(source));
    if (layer.isValid() && flags != 0) {
        push(scene, std::make_unique<SetLightLayerFlags>(api, layer, ~deletedBit, flags));
    }
    return layer;
}

nyx::LightLayerId moveToNewLightLayer(Scene& scene, std::vector<nyx::ObjectId> const& lights) {
    if (lights.empty() || refuses(scene)) {
        return {};
    }
    ScopedMacro const macro(scene, QObject::tr("Move Lights to New Layer"));
    nyx::LightLayerId const layer =
        scene.lightLayers()->createLayer(QObject::tr("New Layer").toStdString());
    if (layer.isValid()) {
        scene.lightLayers()->setItemsLightLayer(layer, itemsOf(lights));
    }
    return layer;
}

void renameLightLayer(Scene& scene, nyx::LightLayerId layer, QString const& name) {
    if (scene.lightLayers() && !name.isEmpty() && name != nameOf(scene, layer)) {
        push(scene, std::make_unique<RenameLightLayer>(apiOf(scene), layer, name.toStdString()));
    }
}

void setLightLayerFlag(Scene& scene, nyx::LightLayerId layer, layerFlags flag, bool on) {
    auto const bit = static_cast<std::uint32_t>(flag);
    if (scene.lightLayers() && apiOf(scene).flags(layer).test(bit) != on) {
        push(scene, std::make_unique<SetLightLayerFlags>(apiOf(scene), layer, bit, on ? bit : 0));
    }
}

void deleteOrRestoreLightLayer(Scene& scene, nyx::LightLayerId layer) {
    if (!scene.lightLayers() || !layer.isValid()) {
        return;
    }
    bool const deleted = isDeleted(scene, layer);
    if (layer == firstLightLayer && !deleted) {
        scene.say(QObject::tr("%1 cannot be deleted: the lights of deleted layers go there.")
                      .arg(nameOf(scene, layer)));
        return;
    }
    scene.flush(); // the lights that are in it are asked for
    using Act = DeleteLightLayer::Act;
    push(scene, std::make_unique<DeleteLightLayer>(apiOf(scene), layer,
                                                   deleted ? Act::Restore : Act::Delete));
}

void moveLights(Scene& scene, std::vector<nyx::ObjectId> const& lights, nyx::LightLayerId layer) {
    if (!scene.lightLayers() || !layer.isValid()) {
        return;
    }
    scene.flush(); // where they are now is asked for
    std::vector<nyx::ObjectId> moved;
    std::ranges::copy_if(lights, std::back_inserter(moved),
                         [&](nyx::ObjectId light) { return !apiOf(scene).contains(layer, light); });
    if (moved.empty()) {
        return;
    }
    QString const name = nameOf(scene, layer);
    ScopedMacro const macro(scene, moved.size() == 1
                                       ? QObject::tr("Put a Light into Layer (%1)").arg(name)
                                       : QObject::tr("Put %2 Lights into Layer (%1)")
                                             .arg(name, QString::number(moved.size())));
    scene.lightLayers()->setItemsLightLayer(layer, itemsOf(moved));
}

} // namespace workbench
