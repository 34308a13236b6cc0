#pragma once

#include "core/AliveGuard.h"
#include "zsg/lightlayers/ILightLayerController.h"

#include <memory>

class ZUndoCommand;
class ZUndoStack;

namespace zsg {

/// Edits through an ILightLayerApi. It keeps nothing but its two borrowed pointers.
class ZLightLayerController final : public ILightLayerController {
public:
    /// Without an undo stack every command is done once and cannot be undone.
    ZLightLayerController(ILightLayerApi* api, ZUndoStack* undoStack);
    ~ZLightLayerController() override;

    [[nodiscard]] ILightLayerApi* lightLayerApi() override;
    nyx::LightLayerId createLayer(std::string name) override;
    bool deleteLayer(nyx::LightLayerId layer) override;
    void addLightsToLayer(nyx::LightLayerId layer, nyx::Span<nyx::ObjectId> lights) override;
    void removeLightsFromLayer(nyx::LightLayerId layer, nyx::Span<nyx::ObjectId> lights) override;
    void setItemsLightLayer(nyx::LightLayerId layer, nyx::Span<nyx::GroupItemId> items) override;
    void setLayerFlags(nyx::LightLayerId layer, nyx::Flags<layerFlags> flags) override;

private:
    bool push(std::unique_ptr<ZUndoCommand> command);
    void changeLights(nyx::LightLayerId layer, nyx::Span<nyx::ObjectId> lights, bool remove);
    [[nodiscard]] bool isInverted(nyx::LightLayerId layer) const;

    /// What commands keep, which may outlive all this.
    [[nodiscard]] GuardedPointer<ILightLayerApi> guardedApi() const { return {api_, aliveGuard_}; }

    ILightLayerApi* api_;
    ZUndoStack* undoStack_;
    AliveGuard const aliveGuard_;
};

} // namespace zsg
