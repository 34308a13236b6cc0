#pragma once

#include "zsg/Export.h"

#include "nyxrender/Flags.h"
#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"
#include "nyxrender/Unique_array.h"
#include "nyxrender/layerFlags.h"

#include <string>
#include <vector>

namespace zsg {

/// The light layers of the renderer's scene: named, flagged groups of lights, each one bit of a
/// 32-bit mask. Changes made here are announced but cannot be undone; ILightLayerController makes
/// the undoable ones. Main thread only.
///
/// There are two databases: the scene's, and a working copy that the user interface reads. What
/// reads "from the working copy" knows the scene as it was at the last sync() plus the changes made
/// here since; before the first sync() it has no layers. Names are UTF-8.
///
/// Nothing is reported: unknown layers, lights and items are passed on to the databases or skipped,
/// empty spans are fine, and each call posts its event even when nothing came of it, unless said
/// otherwise. Without a scene there is nothing to read, and no layer can be made.
class ZSG_EXPORT ILightLayerApi {
public:
    ILightLayerApi(ILightLayerApi const&) = delete;
    ILightLayerApi& operator=(ILightLayerApi const&) = delete;
    virtual ~ILightLayerApi();

    /// Makes the working copy equal to the scene's database and posts LightLayerSyncedEvent.
    virtual void sync() = 0;

    /// A new layer with what the renderer copies of `source`; posts LightLayerUpdatedEvent for it.
    /// The invalid id, and no event, when the scene can have no more layers.
    virtual nyx::LightLayerId cloneLayer(nyx::LightLayerId source) = 0;

    // From the working copy.

    /// Deleted layers do not count, nor are they listed.
    [[nodiscard]] virtual unsigned int layerCount() const = 0;
    [[nodiscard]] virtual nyx::Unique_array<nyx::LightLayerId> layers() const = 0;
    [[nodiscard]] virtual nyx::Unique_array<nyx::ObjectId>
    lights(nyx::LightLayerId layer) const = 0;

    /// The layers that lights of these items are in, in the scene as it is now: an item's own when
    /// it is a light, and those of everything below it. Ascending, without repeats.
    [[nodiscard]] virtual std::vector<nyx::LightLayerId>
    layersOfItems(nyx::Span<nyx::GroupItemId> items) const = 0;

    /// From the working copy.
    [[nodiscard]] virtual bool contains(nyx::LightLayerId layer, nyx::ObjectId light) const = 0;

    /// The objects of the scene as it is now that are in the layer, in the order of its hierarchy;
    /// those whose shader answers query 4100 are left out. Costs a walk over the whole scene.
    [[nodiscard]] virtual std::vector<nyx::ObjectId>
    getLayerItems(nyx::LightLayerId layer) const = 0;

    /// A new, empty layer; posts LightLayerUpdatedEvent for it. A name that is taken, by a deleted
    /// layer too, is numbered. The invalid id, and no event, for an empty name and when the scene
    /// can have no more layers (a renderer has 32, deleted ones included).
    virtual nyx::LightLayerId createLayer(std::string name) = 0;

    /// Marks the layer with layerFlags::Deleted; the renderer decides where its lights go. Clearing
    /// the flag brings the layer back, without them. Posts LightLayerUpdatedEvent.
    virtual void deleteLayer(nyx::LightLayerId layer) = 0;

    /// Posts LightLayerUpdatedEvent. A name that is taken is numbered. An empty name, and the one
    /// that the layer has, do nothing.
    virtual void setLayerName(nyx::LightLayerId layer, std::string name) = 0;

    /// From the working copy; deleted layers still have theirs. Empty for an unknown layer.
    [[nodiscard]] virtual std::string layerName(nyx::LightLayerId layer) const = 0;

    /// Puts those of the lights that are in the scene's layer 1 into a new layer "New Layer"
    /// (numbered when that is taken); nothing happens when there are none. Posts
    /// LightLayerUpdatedEvent for layer 1, for the new layer as it is made, and for it once more
    /// with its lights.
    virtual void moveLightsToNewLayer(nyx::Span<nyx::ObjectId> lights) = 0;

    /// Puts every light among the items, and every one below those that are none, into the layer,
    /// each once, and posts LightLayerUpdatedEvent for it. A light below a light stays. The working
    /// copy follows at the next sync().
    virtual void setItemsLightLayer(nyx::LightLayerId layer, nyx::Span<nyx::GroupItemId> items) = 0;

    /// Puts lights into the layer, out of the one that they were in; posts LightLayerUpdatedEvent
    /// for this layer only.
    virtual void addLights(nyx::LightLayerId layer, nyx::Span<nyx::ObjectId> lights) = 0;

    /// Takes lights out of the layer; where they go is the renderer's choice. Posts
    /// LightLayerUpdatedEvent.
    virtual void removeLights(nyx::LightLayerId layer, nyx::Span<nyx::ObjectId> lights) = 0;

    /// Gives the layer these flags in place of all that it had; posts LightLayerUpdatedEvent.
    virtual void setFlags(nyx::LightLayerId layer, nyx::Flags<layerFlags> flags) = 0;

    /// From the working copy; none for an unknown layer.
    [[nodiscard]] virtual nyx::Flags<layerFlags> flags(nyx::LightLayerId layer) const = 0;

    /// Writes the working copy to standard output; docs/formats.md has the layout.
    virtual void dump() const = 0;

protected:
    ILightLayerApi();
};

} // namespace zsg
