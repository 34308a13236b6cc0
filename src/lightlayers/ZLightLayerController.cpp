#include "lightlayers/ZLightLayerController.h"

#include "lightlayers/LightLayerCommands.h"
#include "zsg/lightlayers/ILightLayerApi.h"

#include "zcore/ZUndoStack.h"

#include <utility>
#include <vector>

namespace zsg {

ILightLayerController::ILightLayerController() = default;
ILightLayerController::~ILightLayerController() = default;

ZLightLayerController::ZLightLayerController(ILightLayerApi* api, ZUndoStack* undoStack)
    : api_(api), undoStack_(undoStack) {}

ZLightLayerController::~ZLightLayerController() = default;

ILightLayerApi* ZLightLayerController::lightLayerApi() { return api_; }

bool ZLightLayerController::push(std::unique_ptr<ZUndoCommand> command) {
    return undoStack_ ? undoStack_->push(command.release()) : command->redo();
}

nyx::LightLayerId ZLightLayerController::createLayer(std::string name) {
    auto command = std::make_unique<ZCreateLightLayerCommand>(guardedApi(), std::move(name));
    auto const layer = command->layer();
    push(std::move(command));
    return *layer;
}

bool ZLightLayerController::deleteLayer(nyx::LightLayerId layer) {
    return push(std::make_unique<ZDeleteLightLayerCommand>(guardedApi(), layer));
}

void ZLightLayerController::addLightsToLayer(nyx::LightLayerId layer,
                                             nyx::Span<nyx::ObjectId> lights) {
    changeLights(layer, lights, isInverted(layer));
}

void ZLightLayerController::removeLightsFromLayer(nyx::LightLayerId layer,
                                                  nyx::Span<nyx::ObjectId> lights) {
    changeLights(layer, lights, !isInverted(layer));
}

// An inverted layer is edited by what it leaves out: adding to it takes lights out. The flag counts
// as it is now; undo and redo stay with what was done.
bool ZLightLayerController::isInverted(nyx::LightLayerId layer) const {
    return api_->flags(layer).test(static_cast<std::uint32_t>(layerFlags::Inverted));
}

void ZLightLayerController::changeLights(nyx::LightLayerId layer, nyx::Span<nyx::ObjectId> lights,
                                         bool remove) {
    push(std::make_unique<ZChangeLightsInLightLayerCommand>(
        guardedApi(), layer, std::vector<nyx::ObjectId>(lights.begin(), lights.end()), remove));
}

void ZLightLayerController::setItemsLightLayer(nyx::LightLayerId layer,
                                               nyx::Span<nyx::GroupItemId> items) {
    push(std::make_unique<ZSetItemLightLayerCommand>(
        guardedApi(), layer, std::vector<nyx::GroupItemId>(items.begin(), items.end())));
}

void ZLightLayerController::setLayerFlags(nyx::LightLayerId layer, nyx::Flags<layerFlags> flags) {
    api_->setFlags(layer, flags);
}

} // namespace zsg
