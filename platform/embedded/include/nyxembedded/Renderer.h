#pragma once

#include "nyxembedded/Colors.h"
#include "nyxembedded/Colorways.h"
#include "nyxembedded/Faults.h"
#include "nyxembedded/Items.h"
#include "nyxembedded/Journal.h"
#include "nyxembedded/Ledger.h"
#include "nyxembedded/Materials.h"
#include "nyxrender/Export.h"
#include "nyxrender/nyxMessage.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

class nyxLight_layer_db;
class nyxRT_api;
class nyxScene;

namespace nyx::embedded {

class Painting;

/// The in-memory renderer: owns one scene, the run-time API over it, and its notifications. Build a
/// scene by calls, subject by subject, or from a scene file, hand api() to the library, and pump
/// processEvents() or run a Qt event loop. Main thread; the API's lock may be taken from any
/// thread.
///
/// Record ids start at 1 per kind, ascend, and are never used again. Every list is in creation
/// order.
class NYXRENDER_EXPORT Renderer {
public:
    Renderer();
    ~Renderer();
    Renderer(Renderer const&) = delete;
    Renderer& operator=(Renderer const&) = delete;

    /// What the library is given. Lives as long as the renderer.
    [[nodiscard]] nyxRT_api* api();
    /// The scene itself, also while Faults::noScene hides it from api(). It is the same object for
    /// the renderer's whole life.
    [[nodiscard]] nyxScene* scene();

    // The subjects of the scene, each in a header of its own. Names are UTF-8, up to a zero byte.
    // Building notifies nobody; an unknown id that is handed in is kept where a record may name it.

    [[nodiscard]] Colors& colors();
    [[nodiscard]] Colors const& colors() const;
    [[nodiscard]] Colorways& colorways();
    [[nodiscard]] Colorways const& colorways() const;
    [[nodiscard]] Materials& materials();
    [[nodiscard]] Materials const& materials() const;
    /// Groups, objects and lights.
    [[nodiscard]] Items& items();
    [[nodiscard]] Items const& items() const;
    /// The scene's light layers, to build them and to look at them.
    [[nodiscard]] nyxLight_layer_db& lightLayers();
    /// The surfaces and what is painted on them; include nyxembedded/Painting.h.
    [[nodiscard]] Painting& painting();

    /// Which layers the environment's light is in; layer 1 at first.
    void setEnvironmentLightMask(std::uint32_t mask);
    /// What nyx_scene_unit_scale() answers; what is no finite number above 0 counts as none.
    void setUnitScale(double scale);

    // Notifications. Messages and call_after_sync functions are delivered in the next turn of the
    // Qt event loop, or by processEvents(), never inside the call that caused them: first one
    // message 5006 with the colours that commits changed, in commit order without repeats, then
    // other messages, then the functions. What a receiver causes waits for the turn after. A
    // receiver may load a scene, but must not end the renderer.

    void setMessageHandler(std::function<void(nyxMessage const&)> handler);
    /// Delivers turn after turn until nothing waits, without needing a Qt event loop; ignored
    /// inside a delivery. Receivers that always cause more end it with a warning after 1000 turns.
    void processEvents();

    // Looking on.

    /// Every call to the renderer and to the material manager since the last take. Recording starts
    /// switched off. Calls that only fetch what others work on are not recorded: scene(),
    /// nyx_get_scene_api() and the memory functions, and the getters of group items and shaders.
    [[nodiscard]] Journal& journal();
    /// The whole scene as text, the same for the same scene.
    [[nodiscard]] std::string dump() const;
    [[nodiscard]] Faults& faults();
    /// What is on loan at this moment.
    [[nodiscard]] Ledger ledger() const;
    /// Whether set_modified(true) was called since set_modified(false), loading or saving. Building
    /// does not count.
    [[nodiscard]] bool isModified() const;
    /// How often a frame was asked for.
    [[nodiscard]] unsigned refreshCount() const;

    // The scene file, described in docs/formats.md.

    /// Replaces the scene's contents and announces the colours. On failure the scene stays as it
    /// was, and the result is a message for people; it is empty on success. Pointers to materials
    /// and items end with the old contents. Undo commands and the root name records by id, so from
    /// then on they mean the new ones, and blocks lent before are not committed any more: clear the
    /// undo stack and end the root before, and build a new root after. `beforeReplacing` is the
    /// place for that: it is called when the file has been found good and the old contents still
    /// stand. Host does all of it.
    [[nodiscard]] std::string loadScene(std::string const& path,
                                        std::function<void()> const& beforeReplacing = {});
    [[nodiscard]] std::string loadSceneText(std::string const& json,
                                            std::function<void()> const& beforeReplacing = {});
    [[nodiscard]] std::string saveScene(std::string const& path);
    [[nodiscard]] std::string saveSceneText() const;

private:
    class Impl;
    std::unique_ptr<Impl> impl_;
};

} // namespace nyx::embedded
