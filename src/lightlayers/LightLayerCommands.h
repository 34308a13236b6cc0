#pragma once

#include "core/AliveGuard.h"

#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"
#include "zcore/ZUndoCommand.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace zsg {

class ILightLayerApi;

/// The shape of the undo commands of light layers: they change the scene through the light-layer
/// API and refer to layers, lights and items by id. None fails while the API is there.
class LightLayerCommand : public ZUndoCommand {
public:
    bool undo() final;
    bool redo() final;

protected:
    LightLayerCommand(GuardedPointer<ILightLayerApi> api, ZCommandId id, QString const& text);

    /// Several roots may share a stack, and each has a layer 2.
    [[nodiscard]] bool hasApiOf(LightLayerCommand const& other) const {
        return api_.means(other.api_);
    }

private:
    virtual void undoIn(ILightLayerApi& api) = 0;
    virtual void redoIn(ILightLayerApi& api) = 0;

    GuardedPointer<ILightLayerApi> api_;
};

/// Makes a layer. The database keeps deleted layers, so undo deletes it and the next redo brings
/// the same one back.
class ZCreateLightLayerCommand final : public LightLayerCommand {
public:
    ZCreateLightLayerCommand(GuardedPointer<ILightLayerApi> api, std::string name);

    /// The layer, invalid until one was made. Whoever pushes the command holds this, as a stack may
    /// delete a command before its push() returns.
    [[nodiscard]] std::shared_ptr<nyx::LightLayerId const> layer() const { return layer_; }

private:
    void undoIn(ILightLayerApi& api) override;
    void redoIn(ILightLayerApi& api) override;

    std::string name_;
    std::shared_ptr<nyx::LightLayerId> layer_;
};

/// Deletes a layer. Undo brings it back with the lights that were listed in it.
class ZDeleteLightLayerCommand final : public LightLayerCommand {
public:
    ZDeleteLightLayerCommand(GuardedPointer<ILightLayerApi> const& api, nyx::LightLayerId layer);

private:
    void undoIn(ILightLayerApi& api) override;
    void redoIn(ILightLayerApi& api) override;

    nyx::LightLayerId layer_;
    std::vector<nyx::ObjectId> lights_;
};

/// Adds lights to a layer or removes them from it; undo does the opposite.
class ZChangeLightsInLightLayerCommand final : public LightLayerCommand {
public:
    ZChangeLightsInLightLayerCommand(GuardedPointer<ILightLayerApi> api, nyx::LightLayerId layer,
                                     std::vector<nyx::ObjectId> lights, bool remove);
    /// Takes over the lights of a later command of this class that does the same to the same layer,
    /// with repeats.
    bool mergeWith(ZUndoCommand const* other) override;

private:
    void undoIn(ILightLayerApi& api) override;
    void redoIn(ILightLayerApi& api) override;
    void change(ILightLayerApi& api, bool remove);

    std::vector<nyx::ObjectId> lights_;
    nyx::LightLayerId layer_;
    bool remove_;
};

/// Puts the lights among items, and those below the others, into a layer; undo puts those that were
/// listed in layers before back into them.
class ZSetItemLightLayerCommand final : public LightLayerCommand {
public:
    using ItemsOfLayers = std::map<nyx::LightLayerId, std::vector<nyx::GroupItemId>>;

    ZSetItemLightLayerCommand(GuardedPointer<ILightLayerApi> api, nyx::LightLayerId layer,
                              std::vector<nyx::GroupItemId> items);

private:
    void undoIn(ILightLayerApi& api) override;
    void redoIn(ILightLayerApi& api) override;
    [[nodiscard]] ItemsOfLayers currentAssignment(ILightLayerApi const& api) const;

    nyx::LightLayerId layer_;
    std::vector<nyx::GroupItemId> items_;
    ItemsOfLayers previous_;
    bool firstRun_ = true;
};

} // namespace zsg
