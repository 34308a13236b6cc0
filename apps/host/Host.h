#pragma once

#include "host/EventLog.h"
#include "host/EventPrinter.h"

#include "nyxembedded/Host.h"

#include <any>
#include <functional>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <typeindex>
#include <unordered_map>

namespace app {

/// What commands work on: the embedded host (renderer, undo stack, task queue, material manager,
/// root), a log of the events, where output goes, and what commands keep between them.
class Host {
public:
    /// Text of commands goes to `out`, which must outlive the host; nothing is loaded yet.
    explicit Host(std::ostream& out);
    ~Host();
    Host(Host const&) = delete;
    Host& operator=(Host const&) = delete;

    /// Replaces the scene; on failure everything stays as it was and the message is returned, which
    /// is empty on success. The renderer announces the colours of the new scene at the next pump().
    [[nodiscard]] std::string load(std::string const& path);

    /// What was loaded last, as load() was given it; empty before.
    [[nodiscard]] std::string const& path() const { return path_; }

    /// Where the scene was saved last, as save() was given it, and how often; empty before.
    [[nodiscard]] std::string const& savedPath() const { return savedPath_; }
    [[nodiscard]] int saveCount() const { return saves_; }

    /// `watcher` is called with the root at once and with each one that follows, and with null
    /// before one ends, when the undo stack is empty already. It must not throw; there is one.
    void watchRoot(std::function<void(zsg::ISceneGraph*)> watcher);

    /// `watcher` is told of each event, of this root and those that follow, besides the log; there
    /// is one, and an empty one ends the watch.
    void watchEvents(std::function<void(EventLog::Entry const&)> watcher) {
        eventWatcher_ = std::move(watcher);
    }

    /// Delivers what the renderer has to say.
    void pump();

    /// Where commands print. A reference that is kept would miss the run of events that is printed
    /// first, so commands ask for it each time.
    [[nodiscard]] std::ostream& out() {
        eventPrinter_.flush(*out_);
        return *out_;
    }
    void setOut(std::ostream& out) {
        eventPrinter_.flush(*out_);
        out_ = &out;
    }
    void showEvents(EventPrinter::Show what);

    [[nodiscard]] nyx::embedded::Renderer& renderer() { return embedded_.renderer(); }
    [[nodiscard]] ZUndoStack& undoStack() { return embedded_.undoStack(); }
    [[nodiscard]] nyx::embedded::RenderTaskQueue& taskQueue() { return embedded_.taskQueue(); }
    [[nodiscard]] zsg::ISceneMaterialManager& materialManager() {
        return embedded_.materialManager();
    }
    [[nodiscard]] zsg::ISceneGraph& root() { return embedded_.root(); }
    [[nodiscard]] EventLog& events() { return *events_; }

    /// The scene's dump when the render tasks have run out.
    [[nodiscard]] std::string dump();
    /// As nyx::embedded::Host has them.
    [[nodiscard]] std::string save(std::string const& path);
    [[nodiscard]] std::string saveText() { return embedded_.saveSceneText(); }

    /// Whether whoever feeds commands is to stop: when that loses no unsaved edits, about which a
    /// terminal asks, or whatever is lost.
    enum class End { No, WhenSaved, Now };
    void requestEnd(End end) { end_ = end; }
    [[nodiscard]] End end() const { return end_; }
    [[nodiscard]] bool endRequested() const { return end_ != End::No; }

    /// What a family of commands keeps between them, made at the first request. It lives as long as
    /// the host, so it may refer to nothing of the root or the scene, which loading replaces.
    template <class State>
    State& state() {
        return stateIn<State>(states_);
    }
    /// The same for what belongs to the present scene: it ends before the root does.
    template <class State>
    State& sceneState() {
        return stateIn<State>(sceneStates_);
    }

private:
    // By hash: MinGW's order of types is none where one of them is local to a file.
    using States = std::unordered_map<std::type_index, std::any>;

    template <class State>
    static State& stateIn(States& states) {
        std::any& any = states[std::type_index(typeid(State))];
        if (!any.has_value()) {
            any = std::make_shared<State>();
        }
        return *std::any_cast<std::shared_ptr<State>&>(any);
    }

    std::ostream* out_;
    std::string path_;
    std::string savedPath_;
    int saves_ = 0;
    std::function<void(zsg::ISceneGraph*)> watcher_;
    std::function<void(EventLog::Entry const&)> eventWatcher_;
    EventPrinter eventPrinter_;
    End end_ = End::No;
    States states_;
    // These two refer to the root of the embedded host, which tells before it ends one.
    States sceneStates_;
    std::optional<EventLog> events_;
    nyx::embedded::Host embedded_;
};

} // namespace app
