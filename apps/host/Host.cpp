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
        if (watcher_ && !root) {
            watcher_(nullptr);
        }
        if (!root) {
            return;
        }
        events_.emplace(*root->eventQueue(), [this](EventLog::Entry const& e) {
            eventPrinter_.add(e, *out_);
            if (eventWatcher_) {
                eventWatcher_(e);
            }
        });
        if (watcher_) {
            watcher_(root);
        }
    });
}

Host::~Host() {
    while (undoStack().macroDepth() > 0) { // a session may end in the middle of one
        undoStack().endMacro({});
    }
}

std::string Host::dump() {
    taskQueue().waitIdle();
    return renderer().dump();
}

std::string Host::load(std::string const& path) {
    try {
        checkInputFile(path, largestScene);
    } catch (CommandError const& error) {
        return error.what();
    }
    std::string message = embedded_.loadScene(path);
    if (message.empty()) {
        path_ = path;
    }
    return message;
}

std::string Host::save(std::string const& path) {
    std::string message = embedded_.saveScene(path);
    if (message.empty()) {
        savedPath_ = path;
        ++saves_;
    }
    return message;
}

void Host::watchRoot(std::function<void(zsg::ISceneGraph*)> watcher) {
    watcher_ = std::move(watcher);
    if (watcher_) {
        watcher_(&root());
    }
}

void Host::showEvents(EventPrinter::Show what) {
    eventPrinter_.flush(*out_);
    eventPrinter_.show(what);
}

void Host::pump() { embedded_.renderer().processEvents(); }

} // namespace app
