#pragma once

#include "host/EventLog.h"

#include "nyxembedded/MaterialManager.h"
#include "nyxembedded/RenderTaskQueue.h"
#include "nyxembedded/Renderer.h"
#include "zcore/ZUndoStack.h"

#include <any>
#include <iosfwd>
#include <map>
#include <memory>
#include <string>
#include <typeindex>

namespace zsg {
class ISceneGraph;
}

namespace app {

/// What an application keeps around the library: the renderer with its scene, the undo stack, the
/// task queue, the material manager, and the root over all of them. Commands work on it.
class Host {
public:
    /// Text of commands goes to `out`, which must outlive the host; nothing is loaded yet.
    explicit Host(std::ostream& out);
    ~Host();

    /// Replaces the scene; on failure everything stays as it was and the message is returned, which
    /// is empty on success. The renderer announces the colours of the new scene at the next pump().
    [[nodiscard]] std::string load(std::string const& path);

    /// Delivers what the renderer has to say.
    void pump();

    [[nodiscard]] std::ostream& out() { return *out_; }
    void setOut(std::ostream& out) { out_ = &out; }
    void showEvents(bool on) { eventsShown_ = on; }

    [[nodiscard]] nyx::embedded::Renderer& renderer() { return renderer_; }
    [[nodiscard]] ZUndoStack& undoStack() { return undoStack_; }
    [[nodiscard]] nyx::embedded::RenderTaskQueue& taskQueue() { return taskQueue_; }
    [[nodiscard]] zsg::ISceneMaterialManager& materialManager() { return materialManager_; }
    [[nodiscard]] zsg::ISceneGraph& root() { return *root_; }
    [[nodiscard]] EventLog& events() { return *events_; }

    /// Asks whoever feeds commands to stop.
    void requestEnd() { endRequested_ = true; }
    [[nodiscard]] bool endRequested() const { return endRequested_; }

    /// What a family of commands keeps between them, made at the first request. It lives as long as
    /// the host, so it may refer to nothing of the root or the scene, which loading replaces.
    template <class State>
    State& state() {
        std::any& any = states_[std::type_index(typeid(State))];
        if (!any.has_value()) {
            any = std::make_shared<State>();
        }
        return *std::any_cast<std::shared_ptr<State>&>(any);
    }

private:
    void buildRoot();

    std::ostream* out_;
    bool eventsShown_ = true;
    bool endRequested_ = false;
    nyx::embedded::Renderer renderer_;
    ZUndoStack undoStack_;
    nyx::embedded::RenderTaskQueue taskQueue_;
    nyx::embedded::MaterialManager materialManager_{renderer_, &undoStack_};
    std::unique_ptr<zsg::ISceneGraph> root_;
    std::unique_ptr<EventLog> events_;
    std::map<std::type_index, std::any> states_;
};

} // namespace app
