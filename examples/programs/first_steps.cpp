#include <nyxembedded/Host.h>
#include <zsg/colors/ColorController.h>
#include <zsg/colors/ColorDB.h>
#include <zsg/core/Events.h>
#include <zsg/core/IEventListener.h>
#include <zsg/core/ISceneGraph.h>
#include <zsg/core/Subscription.h>
#include <zsg/core/eventPayloadText.h>

#include <iostream>

namespace {

class Listener final : public zsg::IEventListener {
public:
    explicit Listener(zsg::IEventQueue& queue)
        : subscription_(queue, *this, {zsg::EventType::ColorUpdated, zsg::EventType::ColorSynced}) {
    }
    void onEvent(zsg::Event const* event) override { // borrowed: the queue deletes it
        std::cout << "heard " << zsg::eventTypeString(event->type()) << ' '
                  << zsg::eventPayloadText(*event) << '\n';
    }

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
    host.renderer().processEvents();      // what a Qt event loop does by itself
    zsg::ISceneGraph& root = host.root(); // owns every subsystem
    Listener const listener(*root.eventQueue());

    nyx::ColorId const id = root.colorDB()->colors()[0];
    std::cout << root.colorDB()->colorFromId(id).getColorName() << '\n';
    root.colorController()->setDisplayName(id, "Walnut"); // on the undo stack, and announced
    std::cout << host.undoStack().text(0).toStdString() << '\n';
    host.undoStack().undo();
    std::cout << root.colorDB()->colorFromId(id).getColorName() << '\n';
    host.renderer().processEvents(); // what the renderer has to say of it
    return 0;
}
