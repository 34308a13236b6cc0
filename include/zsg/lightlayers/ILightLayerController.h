#pragma once

#include "zsg/Export.h"

#include "nyxrender/Flags.h"
#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"
#include "nyxrender/layerFlags.h"

#include <string>

namespace zsg {

class ILightLayerApi;

/// Undoable changes of light layers: each operation but setLayerFlags() pushes one command on the
/// application's undo stack, or, without a stack, carries it out once for good. docs/undo.md says
/// what undo restores. Arguments are not checked: a command is pushed even when it changes nothing.
/// Main thread only.
class ZSG_EXPORT ILightLayerController {
public:
    ILightLayerController(ILightLayerController const&) = delete;
    ILightLayerController& operator=(ILightLayerController const&) = delete;
    virtual ~ILightLayerController();

    /// What the commands work on; it is there as long as the controller.
    [[nodiscard]] virtual ILightLayerApi* lightLayerApi() = 0;

    /// The new layer; the invalid id when the name is empty, when the scene can have no more
    /// layers, and when the undo stack refuses the command.
    virtual nyx::LightLayerId createLayer(std::string name) = 0;

    /// Whether the command was carried out.
    virtual bool deleteLayer(nyx::LightLayerId layer) = 0;

    /// On a layer whose flags have layerFlags::Inverted, adding takes the lights out and removing
    /// puts them in. Edits of one layer that do the same and follow each other are one undo step.
    virtual void addLightsToLayer(nyx::LightLayerId layer, nyx::Span<nyx::ObjectId> lights) = 0;
    virtual void removeLightsFromLayer(nyx::LightLayerId layer,
                                       nyx::Span<nyx::ObjectId> lights) = 0;

    /// Puts every light among the items, and every one below the others, into the layer.
    virtual void setItemsLightLayer(nyx::LightLayerId layer, nyx::Span<nyx::GroupItemId> items) = 0;

    /// ILightLayerApi::setFlags(); not undoable.
    virtual void setLayerFlags(nyx::LightLayerId layer, nyx::Flags<layerFlags> flags) = 0;

protected:
    ILightLayerController();
};

} // namespace zsg
