#pragma once

#include "nyxrender/Export.h"
#include "nyxrender/Flags.h"
#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"
#include "nyxrender/layerFlags.h"

#include <functional>

class nyxScene;
struct nyxParameter_edit;
namespace nyx::painter {
class nyxBrush_node;
}

/// The renderer's run-time API: the handle through which an application reaches the current scene.
/// Called on the application's main thread, except lock(), unlock() and call_after_sync(), which
/// any thread may call.
class NYXRENDER_EXPORT nyxRT_api {
public:
    virtual ~nyxRT_api();

    /// The current scene, null when none is loaded.
    virtual nyxScene* scene() = 0;
    /// The recursive lock over scene data; every lock() needs its unlock() on the same thread.
    virtual void lock() = 0;
    virtual void unlock() = 0;
    /// Marks the scene as changed since it was saved, or as saved.
    virtual void set_modified(bool modified) = 0;
    /// Asks for a new frame.
    virtual void refresh(int reason) = 0;

    /// A newly made block with the parameters of a record, or null when there is no such record.
    /// The caller hands it back with the release call of its kind.
    [[nodiscard]] virtual nyxParameter_edit* color_params(nyx::ColorId id) = 0;
    [[nodiscard]] virtual nyxParameter_edit* colorway_params(nyx::ColorwayId id) = 0;
    [[nodiscard]] virtual nyxParameter_edit* color_settings_params() = 0;
    /// Writes a block's values into the record named by its record_id at once; an unknown record is
    /// ignored. The block stays the caller's.
    virtual void commit_color_params(nyxParameter_edit* block) = 0;
    virtual void commit_colorway_params(nyxParameter_edit* block) = 0;
    virtual void commit_color_settings_params(nyxParameter_edit* block) = 0;
    /// Frees a block with the lists that it holds; null is ignored.
    virtual void release_color_params(nyxParameter_edit* block) = 0;
    virtual void release_colorway_params(nyxParameter_edit* block) = 0;
    virtual void release_color_settings_params(nyxParameter_edit* block) = 0;
    /// A deep copy of a block of any kind, of the same kind; null for null. `copy_values` false
    /// leaves every value at its default.
    [[nodiscard]] virtual nyxParameter_edit* clone_color_params(nyxParameter_edit const* block,
                                                                bool copy_values) = 0;

    /// Adds lights to a layer of the scene (`operation` 0) or removes them from it (1).
    virtual void change_layer_lights(nyx::LightLayerId layer, nyx::Span<nyx::ObjectId> lights,
                                     int operation) = 0;
    /// Puts lights into a layer of the scene, out of whichever they were in.
    virtual void assign_layer_lights(nyx::LightLayerId layer, nyx::Span<nyx::ObjectId> lights) = 0;
    virtual void set_layer_flags(nyx::LightLayerId layer, nyx::Flags<layerFlags> flags) = 0;

    /// Tells the renderer that parameters of a brush node have changed.
    virtual void update_brush_node(nyx::painter::nyxBrush_node* node) = 0;

    /// Runs `function` once on the main thread after the renderer has next synchronised with the
    /// scene; functions run in the order in which they were given. Any thread.
    virtual void call_after_sync(std::function<void()> function) = 0;
};
