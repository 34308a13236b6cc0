// The README's example, whole: rename a colour, hear about it, take it back.

#include "nyxembedded/Renderer.h"
#include "zcore/ZUndoStack.h"
#include "zsg/colors/ColorController.h"
#include "zsg/colors/ColorDB.h"
#include "zsg/core/Events.h"
#include "zsg/core/IEventListener.h"
#include "zsg/core/ISceneGraph.h"
#include "zsg/core/SceneGraphPars.h"
#include "zsg/core/Subscription.h"
#include "zsg/materials/ISceneMaterialManager.h"

#include <iostream>

namespace {

class Printer final : public zsg::IEventListener {
public:
    void onEvent(zsg::Event const* event) override {
        std::cout << zsg::eventTypeString(event->type()) << '\n';
    }
};

} // namespace

int main(int argc, char** argv) {
    nyx::embedded::Renderer renderer; // or adapters of the real renderer
    std::string const error = renderer.loadScene(argc > 1 ? argv[1] : "showroom.json");
    if (!error.empty()) {
        std::cerr << error << '\n';
        return 1;
    }
    ZUndoStack undo;
    auto const materials = renderer.materialManager(&undo);

    zsg::SceneGraphPars pars;
    pars.rtApi = renderer.api();
    pars.sceneMaterialManager = materials.get();
    pars.undoStack = &undo;
    auto const root = zsg::ISceneGraph::create(pars); // owns every subsystem

    Printer printer;
    zsg::Subscription const subscription(*root->eventQueue(), printer,
                                         {zsg::EventType::ColorUpdated});
    nyx::ColorId const id = root->colorDB()->colors()[0];
    auto const name = [&] { return root->colorDB()->colorFromId(id).getColorName(); };

    std::cout << name() << '\n';
    root->colorController()->setDisplayName(id, "Walnut"); // pushed, and announced as an event
    std::cout << name() << " after: " << undo.text(undo.index() - 1).toStdString() << '\n';
    undo.undo();
    std::cout << name() << '\n';
    undo.clear(); // commands refer to the root's colour database
    return 0;
}
