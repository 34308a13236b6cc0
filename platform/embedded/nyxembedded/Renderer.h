#pragma once

#include "nyxembedded/Faults.h"
#include "nyxembedded/Ledger.h"
#include "nyxrender/Export.h"
#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"
#include "nyxrender/nyxColor.h"
#include "nyxrender/nyxMessage.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

class nyxRT_api;
class nyxScene;
class ZUndoStack;
namespace zsg {
class ISceneMaterialManager;
}

namespace nyx::embedded {

/// A multi-colour and the sub-colour that a colorway makes active in it.
struct ColorwayPair {
    nyx::ColorId multiColor;
    nyx::ColorId subColor;
};

/// The in-memory renderer: owns one scene, the run-time API over it, and its notifications. Build a
/// scene by calls or from a scene file, hand api() to the library, and pump processEvents() or run a
/// Qt event loop. Main thread; the API's lock may be taken from any thread.
///
/// Record ids start at 1 per kind, ascend, and are never used again. Every list is in creation order.
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

    // Building. Names are UTF-8 and taken as they are, made unique for colours; an unknown id that is
    // handed in is kept where a record may name it, and leaves everything as it was otherwise.

    nyx::ColorId addColor(std::string const& name, nyxColor_rgba const& value);
    nyx::ColorId addMultiColor(std::string const& name, nyx::Span<nyx::ColorId> subColors,
                               nyx::ColorId active);
    nyx::ColorwayId addColorway(std::string const& name, nyx::Span<ColorwayPair> pairs);
    nyx::MaterialId addMaterial(std::string const& name);
    /// Makes a place of a material (or finds it) and binds it; false for an unknown material.
    bool bindColor(nyx::MaterialId material, std::uint32_t node, std::string const& parameter,
                   nyx::ColorId color);
    /// A group at the top, or in another group.
    nyx::GroupItemId addGroup(std::string const& name, nyx::GroupItemId parent = {});
    /// An object that uses a material (or none).
    nyx::ObjectId addObject(std::string const& name, nyx::GroupItemId parent = {},
                            nyx::MaterialId material = {});
    nyx::ObjectId addLight(std::string const& name, nyx::GroupItemId parent = {});

    // What the renderer does by itself, behind the library's back.

    /// Takes a record out of the scene at once; what names it keeps the id. False when unknown.
    bool removeColor(nyx::ColorId id);
    bool removeColorway(nyx::ColorwayId id);
    /// Changes a colour's value and reports it with message 5006.
    bool changeColor(nyx::ColorId id, nyxColor_rgba const& value);
    /// Makes a colorway the active one, with the sub-colours that it names, and reports it with
    /// message 5007.
    bool activateColorway(nyx::ColorwayId id);
    /// Reports every colour with one message 5006, as after loading.
    void announceColors();

    // Notifications. Messages and call_after_sync functions are delivered in the next turn of the Qt
    // event loop, or by processEvents(), never inside the call that caused them: first one message
    // 5006 with the changed colours in commit order without repeats, then other messages, then the
    // functions.

    void setMessageHandler(std::function<void(nyxMessage const&)> handler);
    /// Delivers all that waits, until nothing waits; needs no Qt event loop.
    void processEvents();

    // Looking on.

    /// Every call from the library to the renderer since the last take, one line of text each, in
    /// order. Recording starts switched off.
    void recordJournal(bool on);
    [[nodiscard]] std::vector<std::string> takeJournal();
    /// The whole scene as text, the same for the same scene.
    [[nodiscard]] std::string dump() const;
    [[nodiscard]] Faults& faults();
    /// What is on loan at this moment.
    [[nodiscard]] Ledger ledger() const;
    /// Whether set_modified(true) was called since loading, building or saving.
    [[nodiscard]] bool isModified() const;
    /// How often a frame was asked for.
    [[nodiscard]] unsigned refreshCount() const;

    // The scene file, described in docs/formats.md.

    /// Replaces the scene's contents. On failure the scene stays as it was, and the result is a
    /// message for people; it is empty on success.
    [[nodiscard]] std::string loadScene(std::string const& path);
    [[nodiscard]] std::string loadSceneText(std::string const& json);
    [[nodiscard]] std::string saveScene(std::string const& path);
    [[nodiscard]] std::string saveSceneText() const;

    /// A material manager over this scene that records one command per closed edit on `undoStack`
    /// (borrowed, may be null). It must not outlive the renderer.
    [[nodiscard]] std::unique_ptr<zsg::ISceneMaterialManager>
    materialManager(ZUndoStack* undoStack);

private:
    class Impl;
    std::unique_ptr<Impl> impl_;
};

} // namespace nyx::embedded
