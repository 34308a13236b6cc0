// A whole headless host from its parts: an event loop, a render thread, the renderer's messages on
// their way to the root, undo, and a scene that is saved when it has changed. Over a real renderer
// its API, task queue and messages stand in the place of the embedded ones; nyxembedded/Host.h has
// all of this in one object.
//
//     host SCENE OUT

#include <nyxembedded/MaterialManager.h>
#include <nyxembedded/RenderTaskQueue.h>
#include <nyxembedded/Renderer.h>
#include <zcore/ZUndoStack.h>
#include <zsg/colors/ColorController.h>
#include <zsg/colors/ColorDB.h>
#include <zsg/core/Events.h>
#include <zsg/core/IEventListener.h>
#include <zsg/core/ISceneGraph.h>
#include <zsg/core/SceneGraphPars.h>
#include <zsg/core/Subscription.h>
#include <zsg/lightlayers/ILightLayerController.h>
#include <zsg/painting/IPainter.h>
#include <zsg/painting/IPainterManager.h>
#include <zsg/painting/IPainterSurface.h>

#include <QCoreApplication>
#include <QTimer>

#include <iostream>
#include <map>
#include <memory>
#include <string>

namespace {

/// Counts what is announced; a user interface would note what it has to draw anew, and never edit
/// from inside.
class Announcements final : public zsg::IEventListener {
public:
    explicit Announcements(zsg::IEventQueue& queue)
        : subscription_(queue, *this,
                        {zsg::EventType::ColorUpdated, zsg::EventType::ColorSynced,
                         zsg::EventType::PaintLayersUpdated}) {}

    void onEvent(zsg::Event const* event) override {
        ++counts_[zsg::eventTypeString(event->type())];
    }

    void print() {
        for (auto const& [kind, count] : counts_) {
            std::cout << "  " << count << " x " << kind << '\n';
        }
        counts_.clear();
    }

private:
    std::map<std::string, int> counts_;
    zsg::Subscription subscription_; // last: it ends first
};

/// The parts in the order of who needs whom; what stands first is ended last.
class Host {
public:
    /// An empty text on success.
    std::string open(std::string const& path) {
        close();
        std::string message = renderer_.loadScene(path);
        zsg::SceneGraphPars parts;
        parts.rtApi = renderer_.api();
        parts.taskQueue = &tasks_;
        parts.undoStack = &undo_;
        parts.sceneMaterialManager = &materials_;
        root_ = zsg::ISceneGraph::create(parts);
        announcements_ = std::make_unique<Announcements>(*root_->eventQueue());
        renderer_.setMessageHandler(
            [this](nyxMessage const& message) { root_->handleRendererMessage(message); });
        return message;
    }

    ~Host() { close(); }

    /// The previous file stays when writing fails, and the scene stays modified.
    std::string saveTo(std::string const& path) {
        tasks_.waitIdle(); // what is painted is part of the scene
        std::string message = renderer_.saveScene(path);
        if (message.empty()) {
            undo_.setClean();
        }
        return message;
    }

    zsg::ISceneGraph& root() { return *root_; }
    ZUndoStack& undo() { return undo_; }
    Announcements& announcements() { return *announcements_; }

private:
    /// Tasks and commands refer to the root: they go before it, and it before another scene comes.
    void close() {
        tasks_.waitIdle();
        undo_.clear();
        renderer_.setMessageHandler({});
        announcements_.reset();
        root_.reset();
    }

    nyx::embedded::Renderer renderer_;
    ZUndoStack undo_;
    nyx::embedded::RenderTaskQueue tasks_; // with a thread of its own
    nyx::embedded::MaterialManager materials_{renderer_, &undo_};
    std::unique_ptr<zsg::ISceneGraph> root_;
    std::unique_ptr<Announcements> announcements_;
};

} // namespace

int main(int argc, char** argv) {
    QCoreApplication const application(argc, argv);
    if (argc != 3) {
        std::cerr << "usage: host SCENE OUT\n";
        return 2;
    }
    Host host;
    std::string error = host.open(argv[1]);
    if (!error.empty()) {
        std::cerr << error << '\n';
        return 1;
    }
    // The first turns of the loop bring what the renderer says of the new scene; then the user
    // acts.
    QTimer::singleShot(0, [&] {
        std::cout << "after loading\n";
        host.announcements().print();
        zsg::IPainter& painter = *host.root().painterManager()->painter();
        nyx::SurfaceId const surface = painter.createSurface(64);
        host.root().colorController()->setDisplayName(host.root().colorDB()->colors()[0], "Chalk");
        host.root().lightLayerController()->createLayer("Evening");
        painter.surface(surface)->addLayer(0);
        host.undo().undo();
        QTimer::singleShot(0, [&] { // the renderer's answers come in a later turn as well
            std::cout << "after " << host.undo().index() << " edits and one undone\n";
            host.announcements().print();
            error = host.saveTo(argv[2]);
            std::cout << (error.empty() ? "saved" : error) << ", "
                      << (host.undo().isClean() ? "clean" : "modified") << '\n';
            QCoreApplication::exit(error.empty() ? 0 : 1);
        });
    });
    return QCoreApplication::exec();
}
