#include "nyxembedded/Host.h"

#include "zsg/core/ISceneGraph.h"
#include "zsg/core/SceneGraphPars.h"

#include "nyxembedded/Painting.h"
#include "nyxrender/nyxMessage.h"

#include <utility>

namespace nyx::embedded {

class Host::Impl {
public:
    Impl(RenderTaskQueue::Mode mode, zsg::IMaterialService* materialService)
        : tasks(mode), service(materialService) {
        buildRoot();
        renderer.painting().setTaskBarrier([this] { tasks.waitIdle(); });
        renderer.setMessageHandler([this](nyxMessage const& message) { forward(message); });
    }
    ~Impl() {
        renderer.setMessageHandler({});
        endRoot();
        tasks.waitIdle();
        renderer.painting().setTaskBarrier({});
    }
    Impl(Impl const&) = delete;
    Impl& operator=(Impl const&) = delete;

    void buildRoot() {
        zsg::SceneGraphPars pars;
        pars.rtApi = renderer.api();
        pars.materialService = service;
        pars.sceneMaterialManager = &materials;
        pars.taskQueue = &tasks;
        pars.undoStack = &undoStack;
        root = zsg::ISceneGraph::create(pars);
        if (watcher) {
            watcher(root.get());
        }
    }

    void endRoot() {
        tasks.waitIdle();
        undoStack.clear();
        if (root && watcher) {
            watcher(nullptr);
        }
        root.reset();
    }

    void forward(nyxMessage const& message) {
        if (!root) {
            return;
        }
        struct Forwarding {
            bool& flag;
            ~Forwarding() { flag = false; }
        } const guard{forwarding};
        forwarding = true;
        root->handleRendererMessage(message);
    }

    template <class Load>
    std::string load(Load const& loadInto) {
        if (forwarding || undoStack.isExecuting()) {
            return forwarding ? "no scene can be loaded while the renderer reports changes"
                              : "no scene can be loaded while a command runs";
        }
        if (undoStack.macroDepth() > 0) { // it refuses to be cleared
            return "no scene can be loaded while a macro is open";
        }
        std::string message = loadInto([this] { endRoot(); });
        if (!root) {
            buildRoot();
        }
        return message;
    }

    // In the order of who needs whom: the renderer goes last.
    Renderer renderer;
    ZUndoStack undoStack;
    RenderTaskQueue tasks;
    MaterialManager materials{renderer, &undoStack};
    zsg::IMaterialService* service;
    std::unique_ptr<zsg::ISceneGraph> root;
    std::function<void(zsg::ISceneGraph*)> watcher;
    bool forwarding = false;
};

Host::Host(RenderTaskQueue::Mode tasks, zsg::IMaterialService* service)
    : impl_(std::make_unique<Impl>(tasks, service)) {}

Host::~Host() = default;

Renderer& Host::renderer() { return impl_->renderer; }

ZUndoStack& Host::undoStack() { return impl_->undoStack; }

RenderTaskQueue& Host::taskQueue() { return impl_->tasks; }

MaterialManager& Host::materialManager() { return impl_->materials; }

zsg::ISceneGraph& Host::root() { return *impl_->root; }

std::string Host::loadScene(std::string const& path) {
    return impl_->load([&](std::function<void()> const& beforeReplacing) {
        return impl_->renderer.loadScene(path, beforeReplacing);
    });
}

std::string Host::loadSceneText(std::string const& json) {
    return impl_->load([&](std::function<void()> const& beforeReplacing) {
        return impl_->renderer.loadSceneText(json, beforeReplacing);
    });
}

std::string Host::saveScene(std::string const& path) {
    impl_->tasks.waitIdle();
    std::string message = impl_->renderer.saveScene(path);
    if (message.empty() && impl_->tasks.pending() == 0) {
        impl_->undoStack.setClean();
    }
    return message;
}

std::string Host::saveSceneText() {
    impl_->tasks.waitIdle();
    return impl_->renderer.saveSceneText();
}

void Host::watchRoot(std::function<void(zsg::ISceneGraph*)> watcher) {
    impl_->watcher = std::move(watcher);
    if (impl_->watcher && impl_->root) {
        impl_->watcher(impl_->root.get());
    }
}

} // namespace nyx::embedded
