#include "host/Host.h"

#include "host/Arguments.h"
#include "host/InputFile.h"

#include "zsg/core/ISceneGraph.h"

#include <ostream>

namespace app {

Host::Host(std::ostream& out) : out_(&out) {
    embedded_.watchRoot([this](zsg::ISceneGraph* root) {
        sceneStates_.clear();
        events_.reset();
        if (!root) {
            return;
        }
        events_.emplace(*root->eventQueue(), [this](EventLog::Entry const& e) {
            if (eventsShown_) {
                *out_ << "event " << e.id << ' ' << e.typeText << (e.payload.empty() ? "" : " ")
                      << e.payload << '\n';
            }
        });
    });
}

std::string Host::load(std::string const& path) {
    try {
        checkInputFile(path, largestScene);
    } catch (CommandError const& error) {
        return error.what();
    }
    return embedded_.loadScene(path);
}

void Host::pump() { embedded_.renderer().processEvents(); }

} // namespace app
