#pragma once

#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"
#include "zcore/ZUndoCommand.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace zsg {

class ILightLayerApi;

// The undo commands of light layers. They change the scene through the light-layer API (borrowed)
// and refer to layers, lights and items by id. None of them fails.

/// Makes a layer. The database keeps deleted layers, so undo deletes it and the next redo brings
/// the same one back.
class ZCreateLightLayerCommand final : public ZUndoCommand {
public:
    ZCreateLightLayerCommand(ILightLayerApi* api, std::string name);
    bool undo() override;
    bool redo() override;

    /// The layer, invalid until one was made. Whoever pushes the command holds this, as a stack may
    /// delete a command before its push() returns.
    [[nodiscard]] std::shared_ptr<nyx::LightLayerId const> layer() const { return layer_; }

private:
    ILightLayerApi* api_;
    std::string name_;
    std::shared_ptr<nyx::LightLayerId> layer_;
};

/// Deletes a layer. Undo brings it back with the lights that were listed in it.
class ZDeleteLightLayerCommand final : public ZUndoCommand {
public:
    ZDeleteLightLayerCommand(ILightLayerApi* api, nyx::LightLayerId layer);
    bool undo() override;
    bool redo() override;

private:
    ILightLayerApi* api_;
    nyx::LightLayerId layer_;
    std::vector<nyx::ObjectId> lights_;
};

/// Adds lights to a layer or removes them from it; undo does the opposite.
class ZChangeLightsInLightLayerCommand final : public ZUndoCommand {
public:
    ZChangeLightsInLightLayerCommand(ILightLayerApi* api, nyx::LightLayerId layer,
                                     std::vector<nyx::ObjectId> lights, bool remove);
    bool undo() override;
    bool redo() override;
    /// Takes over the lights of a later command of this class that does the same to the same layer,
    /// with repeats.
    bool mergeWith(ZUndoCommand const* other) override;

private:
    void change(bool remove);

    ILightLayerApi* api_;
    std::vector<nyx::ObjectId> lights_;
    nyx::LightLayerId layer_;
    bool remove_;
};

/// Puts the lights among items and below them into a layer; undo puts those that were listed in
/// layers before back into them.
class ZSetItemLightLayerCommand final : public ZUndoCommand {
public:
    ZSetItemLightLayerCommand(ILightLayerApi* api, nyx::LightLayerId layer,
                              std::vector<nyx::GroupItemId> items);
    bool undo() override;
    bool redo() override;

private:
    using ItemsOfLayers = std::map<nyx::LightLayerId, std::vector<nyx::GroupItemId>>;
    [[nodiscard]] ItemsOfLayers currentAssignment() const;

    ILightLayerApi* api_;
    nyx::LightLayerId layer_;
    std::vector<nyx::GroupItemId> items_;
    ItemsOfLayers previous_;
    bool firstRun_ = true;
};

} // namespace zsg
