#pragma once

#include "nyxembedded/Export.h"
#include "nyxembedded/MaterialManager.h"
#include "nyxembedded/RenderTaskQueue.h"
#include "nyxembedded/Renderer.h"
#include "zcore/ZUndoStack.h"

#include <functional>
#include <memory>
#include <string>

namespace zsg {
class IMaterialService;
class ISceneGraph;
} // namespace zsg

namespace nyx::embedded {

/// All that an application keeps around the library, in one object: a renderer with its scene, an
/// undo stack, a task queue, a material manager, and the root over them. It makes and ends them in
/// the order that they need, empties the undo stack before a root ends (commands refer to it), and
/// hands the renderer's messages to the root. Main thread; there may be several.
///
/// The messages come in turns of the Qt event loop; without one call renderer().processEvents().
class NYXEMBEDDED_EXPORT Host {
public:
    /// An empty scene with a root. `service` is borrowed for the host's life, null when there is
    /// none. What the root's construction throws passes on.
    explicit Host(RenderTaskQueue::Mode tasks = RenderTaskQueue::Mode::Threaded,
                  zsg::IMaterialService* service = nullptr);
    ~Host();
    Host(Host const&) = delete;
    Host& operator=(Host const&) = delete;

    /// Its message handler is the host's: another one cuts the root off from the renderer.
    [[nodiscard]] Renderer& renderer();
    [[nodiscard]] ZUndoStack& undoStack();
    [[nodiscard]] RenderTaskQueue& taskQueue();
    [[nodiscard]] MaterialManager& materialManager();
    /// The present root; loading ends it. There is always one, unless the construction of one threw
    /// while loading: that passes on, and the next scene that loads brings a root again.
    [[nodiscard]] zsg::ISceneGraph& root();

    /// Loads another scene: when the file is good, the render tasks run out (while the queue is
    /// paused they stay), the undo stack is emptied, the root ends, the scene is replaced, and a
    /// new root is built. The renderer announces the new colours to it. Otherwise everything stays
    /// as it was, and the result is a message for people; it is empty on success.
    ///
    /// Refused, with a message, while a message of the renderer is delivered, a command runs or a
    /// macro is open: what would end is in use then. Do not call it out of a listener either.
    [[nodiscard]] std::string loadScene(std::string const& path);
    [[nodiscard]] std::string loadSceneText(std::string const& json);

    /// Writes the scene when the render tasks have run out, so with everything that was painted;
    /// while the queue is paused they stay, and what waits there is left out. When nothing was left
    /// out, the present state is the undo stack's saved one. On failure the result is a message for
    /// people, and file and stack stay as they were.
    [[nodiscard]] std::string saveScene(std::string const& path);
    /// What saveScene() would write; the state does not count as saved.
    [[nodiscard]] std::string saveSceneText();

    /// `watcher` is called with the root at once and with each one that follows, and with null
    /// before one ends, when the undo stack is empty already: the time to let go of what points
    /// into it. It must not throw. An empty one ends the watch.
    void watchRoot(std::function<void(zsg::ISceneGraph*)> watcher);

private:
    class Impl;
    std::unique_ptr<Impl> impl_;
};

} // namespace nyx::embedded
