#include "workbench/lights/LightLayerCommands.h"

#include "zsg/lightlayers/ILightLayerApi.h"

#include "nyxrender/layerFlags.h"

#include <utility>

namespace workbench {

namespace {

constexpr auto renameId = static_cast<ZCommandId>(1010);
constexpr auto flagsId = static_cast<ZCommandId>(1011);
constexpr auto deleteId = static_cast<ZCommandId>(1012);
constexpr auto deletedBit = static_cast<std::uint32_t>(layerFlags::Deleted);

} // namespace

RenameLightLayer::RenameLightLayer(zsg::ILightLayerApi& api, nyx::LightLayerId layer,
                                   std::string name)
    : ZUndoCommand(renameId),
      api_(api),
      layer_(layer),
      before_(api.layerName(layer)),
      after_(std::move(name)) {}

bool RenameLightLayer::setName(std::string const& name) {
    api_.setLayerName(layer_, name);
    return api_.layerName(layer_) == name;
}

bool RenameLightLayer::undo() { return setName(before_); }

bool RenameLightLayer::redo() {
    bool const asWanted = setName(after_);
    if (!text().isEmpty()) {
        return asWanted;
    }
    after_ = api_.layerName(layer_); // numbered when another layer has the name
    setText(tr("Rename Light Layer (%1)").arg(QString::fromStdString(after_)));
    return after_ != before_;
}

SetLightLayerFlags::SetLightLayerFlags(zsg::ILightLayerApi& api, nyx::LightLayerId layer,
                                       std::uint32_t mask, std::uint32_t bits)
    : ZUndoCommand(flagsId),
      api_(api),
      layer_(layer),
      mask_(mask),
      before_(api.flags(layer).bits() & mask),
      after_(bits & mask) {
    setText(tr("Set Light Layer Flags (%1)").arg(QString::fromStdString(api.layerName(layer))));
}

bool SetLightLayerFlags::undo() { return setBits(before_); }

bool SetLightLayerFlags::redo() { return setBits(after_); }

bool SetLightLayerFlags::setBits(std::uint32_t bits) {
    std::uint32_t const others = api_.flags(layer_).bits() & ~mask_;
    api_.setFlags(layer_, nyx::Flags<layerFlags>::fromBits(others | bits));
    return true;
}

DeleteLightLayer::DeleteLightLayer(zsg::ILightLayerApi& api, nyx::LightLayerId layer, Act act)
    : ZUndoCommand(deleteId), api_(api), layer_(layer), act_(act) {
    QString const text =
        act == Act::Delete ? tr("Delete Light Layer (%1)") : tr("Restore Light Layer (%1)");
    setText(text.arg(QString::fromStdString(api.layerName(layer))));
}

bool DeleteLightLayer::remove() {
    if (act_ == Act::Delete && lights_.empty()) {
        auto const lights = api_.lights(layer_);
        lights_.assign(lights.begin(), lights.end());
    }
    api_.deleteLayer(layer_);
    return true;
}

bool DeleteLightLayer::restore() {
    std::uint32_t const flags = api_.flags(layer_).bits();
    api_.setFlags(layer_, nyx::Flags<layerFlags>::fromBits(flags & ~deletedBit));
    if (!lights_.empty()) {
        api_.addLights(layer_, lights_);
    }
    return true;
}

} // namespace workbench
