// Light layers: lights are grouped, the lists of the user interface are read from a working copy,
// and what undo brings back is the layers.

#include <nyxembedded/Host.h>
#include <nyxembedded/Items.h>
#include <zsg/core/ISceneGraph.h>
#include <zsg/lightlayers/ILightLayerApi.h>
#include <zsg/lightlayers/ILightLayerController.h>

#include <iostream>

int main() {
    nyx::embedded::Host host;
    nyx::embedded::Items items = host.renderer().items();
    nyx::GroupItemId const rig = items.addGroup("Rig");
    nyx::ObjectId const key = items.addLight("Key", rig);
    items.addLight("Rim", rig);
    items.addLight("Window");

    zsg::ILightLayerController& edit = *host.root().lightLayerController();
    zsg::ILightLayerApi& layers = *edit.lightLayerApi();
    auto const show = [&](char const* when) {
        layers.sync(); // the lists are those of the last synchronisation
        std::cout << when << ":";
        for (nyx::LightLayerId const id : layers.layers()) {
            std::cout << "  " << layers.layerName(id) << " (" << layers.lights(id).size() << ')';
        }
        std::cout << '\n';
    };
    show("at first");

    // A group stands for every light below it.
    nyx::LightLayerId const studio = edit.createLayer("Studio");
    edit.setItemsLightLayer(studio, {&rig, 1});
    show("with a layer");
    edit.removeLightsFromLayer(studio, {&key, 1});
    show("without the key light");

    // Flags are no undoable edit: an application that wants that pushes a command of its own.
    edit.setLayerFlags(studio, layerFlags::Inverted);
    std::cout << "flags " << layers.flags(studio).bits() << '\n';

    while (host.undoStack().undo()) {
        show("undone");
    }
    return 0;
}
