#pragma once

#include "nyxembedded/Faults.h"
#include "nyxembedded/Journal.h"
#include "nyxembedded/Ledger.h"
#include "nyxembedded/SceneInfo.h"
#include "nyxrender/Export.h"
#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"
#include "nyxrender/nyxColor.h"
#include "nyxrender/nyxMessage.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class nyxLight_layer_db;
class nyxRT_api;
class nyxScene;

namespace nyx::embedded {

class Painting;

/// A multi-colour and the sub-colour that a colorway makes active in it.
struct ColorwayPair {
    nyx::ColorId multiColor;
    nyx::ColorId subColor;
};

/// The in-memory renderer: owns one scene, the run-time API over it, and its notifications. Build a
/// scene by calls or from a scene file, hand api() to the library, and pump processEvents() or run
/// a Qt event loop. Main thread; the API's lock may be taken from any thread.
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

    // Building. Names are UTF-8 and taken as they are, up to a zero byte, and made unique for
    // colours. An unknown id that is handed in is kept where a record may name it; an item under an
    // unknown parent is not made, and the result is the invalid id. Building notifies nobody.

    nyx::ColorId addColor(std::string const& name, nyxColor_rgba const& value);
    nyx::ColorId addMultiColor(std::string const& name, nyx::Span<nyx::ColorId> subColors,
                               nyx::ColorId active);
    nyx::ColorwayId addColorway(std::string const& name, nyx::Span<ColorwayPair> pairs);
    nyx::MaterialId addMaterial(std::string const& name);
    /// Makes a place of a material (or finds it) and binds it; false for an unknown material.
    bool bindColor(nyx::MaterialId material, std::uint32_t node, std::string const& parameter,
                   nyx::ColorId color);
    /// Binds a place that the material has; false for any other and for an unknown material.
    bool rebindColor(nyx::MaterialId material, std::uint32_t node, std::string const& parameter,
                     nyx::ColorId color);
    /// What nyx_material_items() answers; false for an unknown material.
    bool setMaterialItems(nyx::MaterialId material, std::vector<unsigned> items);
    /// A group at the top, or in another group.
    nyx::GroupItemId addGroup(std::string const& name, nyx::GroupItemId parent = {});
    /// An object that uses a material (or none).
    nyx::ObjectId addObject(std::string const& name, nyx::GroupItemId parent = {},
                            nyx::MaterialId material = {});
    /// In layer 1; lightLayers() can put it elsewhere.
    nyx::ObjectId addLight(std::string const& name, nyx::GroupItemId parent = {});
    /// Whether lists of light layers leave the light out: what its shader answers to query 4100.
    /// False for what is no light.
    bool setUnlisted(nyx::ObjectId light, bool unlisted);
    /// Which layers the environment's light is in; layer 1 at first.
    void setEnvironmentLightMask(std::uint32_t mask);
    /// A paint surface with one layer; the invalid id for a resolution below 1 or above 16384.
    nyx::SurfaceId addSurface(std::string const& name, int resolution);
    /// What nyx_scene_unit_scale() answers; what is no finite number above 0 counts as none.
    void setUnitScale(double scale);

    /// What is painted on the surfaces.
    [[nodiscard]] Painting& painting();

    // What the renderer does by itself, behind the library's back.

    /// Takes a record out of the scene at once; what names it keeps the id. False when unknown.
    bool removeColor(nyx::ColorId id);
    bool removeColorway(nyx::ColorwayId id);
    /// Changes a colour's value and reports it with message 5006; false when unknown.
    bool changeColor(nyx::ColorId id, nyxColor_rgba const& value);
    /// Makes a colorway the active one and reports it with message 5007: the settings name it, flag
    /// 2 is set on it and cleared on all others, and each of its multi-colours that lists the
    /// sub-colour paired with it shows that one. False when unknown.
    bool activateColorway(nyx::ColorwayId id);
    /// Reports every colour but the temporary one with one message 5006, as loading does.
    void announceColors();

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

    /// The scene's light layers, to build them and to look at them.
    [[nodiscard]] nyxLight_layer_db& lightLayers();

    /// Every call to the renderer and to the material manager since the last take. Recording starts
    /// switched off. Calls that only fetch what others work on are not recorded: scene(),
    /// nyx_get_scene_api() and the memory functions, and the getters of group items and shaders.
    [[nodiscard]] Journal& journal();
    /// The whole scene as text, the same for the same scene.
    [[nodiscard]] std::string dump() const;
    /// The first record of a name, plain and multi-colours alike; the invalid id when there is
    /// none.
    [[nodiscard]] nyx::ColorId findColor(std::string const& name) const;
    [[nodiscard]] nyx::ColorwayId findColorway(std::string const& name) const;
    [[nodiscard]] nyx::MaterialId findMaterial(std::string const& name) const;
    [[nodiscard]] nyx::GroupItemId findItem(std::string const& name) const;
    /// Nothing for an unknown id.
    [[nodiscard]] std::optional<ColorInfo> color(nyx::ColorId id) const;
    [[nodiscard]] std::optional<ColorwayInfo> colorway(nyx::ColorwayId id) const;
    [[nodiscard]] std::optional<MaterialInfo> material(nyx::MaterialId id) const;
    [[nodiscard]] std::optional<ItemInfo> item(nyx::GroupItemId id) const;
    /// All of a kind, the temporary colour included.
    [[nodiscard]] std::vector<nyx::ColorId> colors() const;
    [[nodiscard]] std::vector<nyx::ColorwayId> colorways() const;
    [[nodiscard]] std::vector<nyx::MaterialId> materials() const;
    [[nodiscard]] std::vector<nyx::GroupItemId> items() const;
    /// What the colour settings name, whether or not it exists.
    [[nodiscard]] nyx::ColorwayId activeColorway() const;
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
