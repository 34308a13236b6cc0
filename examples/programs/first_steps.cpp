// The README's example, whole: load a scene, hear the renderer, rename a colour, take it back.

#include "nyxembedded/Host.h"
#include "zsg/colors/ColorController.h"
#include "zsg/colors/ColorDB.h"
#include "zsg/core/Events.h"
#include "zsg/core/IEventListener.h"
#include "zsg/core/ISceneGraph.h"
#include "zsg/core/Subscription.h"

#include <iostream>

namespace {

class Listener final : public zsg::IEventListener {
public:
    explicit Listener(zsg::IEventQueue& queue)
        : subscription_(queue, *this, {zsg::EventType::ColorUpdated, zsg::EventType::ColorSynced}) {
    }

    void onEvent(zsg::Event const* event) override {
        if (event->type() == zsg::EventType::ColorSynced) {
            ++synced;
        } else {
            std::cout << zsg::eventTypeString(event->type()) << '\n';
        }
    }

    int synced = 0;

private:
    zsg::Subscription subscription_; // last: it ends first
};

} // namespace

int main(int argc, char** argv) {
    nyx::embedded::Host host; // a renderer in memory, an undo stack, and the root over them
    std::string const error = host.loadScene(argc > 1 ? argv[1] : "showroom.json");
    if (!error.empty()) {
        std::cerr << error << '\n';
        return 1;
    }
    zsg::ISceneGraph& root = host.root(); // owns every subsystem
    zsg::ColorDB& db = *root.colorDB();
    Listener listener(*root.eventQueue());

    host.renderer().processEvents(); // what a Qt event loop does by itself
    std::cout << listener.synced << " colours synchronised\n";

    nyx::ColorId const id = db.colors()[0];
    std::cout << db.colorFromId(id).getColorName() << '\n';
    root.colorController()->setDisplayName(id, "Walnut"); // pushed, and announced as an event
    std::cout << db.colorFromId(id).getColorName()
              << " after: " << host.undoStack().text(0).toStdString() << '\n';
    host.undoStack().undo();
    std::cout << db.colorFromId(id).getColorName() << '\n';
    return 0;
}
