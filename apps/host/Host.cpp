#include "host/Host.h"

#include "host/Arguments.h"
#include "host/InputFile.h"

#include "zsg/core/ISceneGraph.h"
#include "zsg/core/SceneGraphPars.h"

#include <ostream>

namespace app {

Host::Host(std::ostream& out)
    : out_(&out), taskQueue_(nyx::embedded::RenderTaskQueue::Mode::Threaded) {
    renderer_.setMessageHandler([this](nyxMessage const& message) {
        if (root_) {
            root_->handleRendererMessage(message);
        }
    });
    buildRoot();
}

// Commands hold pointers into the root, and the root's objects hold blocks of the renderer.
Host::~Host() {
    states_.clear();
    undoStack_.clear();
    events_.reset();
    root_.reset();
    renderer_.setMessageHandler({});
}

void Host::buildRoot() {
    undoStack_.clear();
    events_.reset();
    root_.reset();

    zsg::SceneGraphPars pars;
    pars.rtApi = renderer_.api();
    pars.sceneMaterialManager = &materialManager_;
    pars.taskQueue = &taskQueue_;
    pars.undoStack = &undoStack_;
    root_ = zsg::ISceneGraph::create(pars);
    events_ = std::make_unique<EventLog>(*root_->eventQueue(), [this](EventLog::Entry const& e) {
        if (eventsShown_) {
            *out_ << "event " << e.id << ' ' << e.typeText << (e.payload.empty() ? "" : " ")
                  << e.payload << '\n';
        }
    });
}

std::string Host::load(std::string const& path) {
    try {
        checkInputFile(path, largestScene);
    } catch (CommandError const& error) {
        return error.what();
    }
    std::string message = renderer_.loadScene(path);
    if (message.empty()) {
        // The edits of the old scene would otherwise be written into the new one.
        buildRoot();
    }
    return message;
}

void Host::pump() { renderer_.processEvents(); }

} // namespace app
