#pragma once

#include "zsg/Export.h"
#include "zsg/core/SceneGraphPars.h"

#include <memory>

struct nyxMessage;
class nyxRT_api;

namespace zsg {

class ColorController;
class ColorDB;
class ICMFManager;
class IEventQueue;
class ILightLayerController;
class IMaterialHandler;
class IPainterManager;

/// The root: the one object that an application creates. It owns one object of every subsystem for
/// its whole life, and everything else is reached through its accessors. Main thread only; destroy
/// it on the thread that created it, from outside of listeners and commands, when the undo stack
/// was cleared of commands that refer to it. Those that stay do no harm while the renderer lives:
/// the ones of colours and light layers fail from then on, with one warning; the ones of paint
/// layers change their surface, but nobody hears of it.
///
/// A root belongs to one scene: its edits, its lists and the commands behind it name records by id,
/// and would change those that the ids mean in the next one. Before the renderer loads another
/// scene clear the undo stack and end the root; when it has, create a new root.
///
/// What the accessors return stays the root's.
class ZSG_EXPORT ISceneGraph {
public:
    /// Builds the root and all subsystems. What a subsystem's construction throws passes on, after
    /// everything built so far was destroyed.
    [[nodiscard]] static std::unique_ptr<ISceneGraph> create(SceneGraphPars const& pars);

    ISceneGraph(ISceneGraph const&) = delete;
    ISceneGraph& operator=(ISceneGraph const&) = delete;
    virtual ~ISceneGraph();

    /// Hand every notification message of the renderer to this. Colours synchronised (5006): posts
    /// one ColorSyncedEvent per colour, in the order of the list. Colorway activated (5007): tells
    /// the colour database. Other messages are ignored. True when it was one of these two.
    virtual bool handleRendererMessage(nyxMessage const& message) = 0;

    /// The handle that the root was created with.
    [[nodiscard]] virtual nyxRT_api* rtApi() const = 0;
    [[nodiscard]] virtual IMaterialHandler* materialHandler() const = 0;
    [[nodiscard]] virtual IEventQueue* eventQueue() const = 0;
    [[nodiscard]] virtual ICMFManager* cmfManager() const = 0;
    [[nodiscard]] virtual IPainterManager* painterManager() const = 0;
    [[nodiscard]] virtual ColorDB* colorDB() const = 0;
    [[nodiscard]] virtual ColorController* colorController() const = 0;
    [[nodiscard]] virtual ILightLayerController* lightLayerController() const = 0;

protected:
    ISceneGraph();
};

} // namespace zsg
