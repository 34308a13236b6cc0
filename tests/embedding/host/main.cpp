#include "TinyRenderer.h"
#include "TinyTaskQueue.h"
#include <zsg/colors/ColorController.h>
#include <zsg/colors/ColorDB.h>
#include <zsg/core/Event.h>
#include <zsg/core/IEventListener.h>
#include <zsg/core/IEventQueue.h>
#include <zsg/core/ISceneGraph.h>
#include <zsg/core/Subscription.h>
#include <zsg/core/eventPayloadText.h>
#include <zsg/lightlayers/ILightLayerApi.h>
#include <zsg/lightlayers/ILightLayerController.h>
#include <zsg/painting/IPainter.h>
#include <zsg/painting/IPainterManager.h>
#include <zsg/painting/IPainterSurface.h>

#include "nyxrender/nyxMessage.h"
#include "zcore/ZUndoStack.h"

#include <QCoreApplication>

#include <iostream>

namespace {

class Printer final : public zsg::IEventListener {
public:
    explicit Printer(zsg::IEventQueue& queue)
        : subscription_(queue, *this,
                        {zsg::EventType::ColorCreated, zsg::EventType::ColorUpdated,
                         zsg::EventType::ColorSynced, zsg::EventType::ColorwayUpdated,
                         zsg::EventType::ColorwaySynced, zsg::EventType::PaintLayersUpdated,
                         zsg::EventType::LightLayerUpdated, zsg::EventType::LightLayerSynced}) {}
    void onEvent(zsg::Event const* event) override {
        std::string const payload = zsg::eventPayloadText(*event);
        std::cout << "  event " << zsg::eventKindText(event->type()) << (payload.empty() ? "" : " ")
                  << payload << '\n';
    }

private:
    zsg::Subscription subscription_;
};

/// A host around the root: prints each step, what was heard, and what the renderer was asked.
class TinyHost {
public:
    template <class Step>
    void step(char const* what, Step const& step) {
        std::cout << what << '\n';
        step();
        tasks.run();
        for (std::string const& call : renderer.takeCalls()) {
            std::cout << "  call " << call << '\n';
        }
        std::vector<nyx::ColorId> const changed = renderer.takeChangedColors();
        if (!changed.empty()) {
            nyxMessage message;
            message.code = nyxMessage::ColorsSynced;
            message.colors = changed;
            root->handleRendererMessage(message);
        }
        renderer.runAfterSync();
    }
    void undoAndRedo() {
        std::string const text = undoStack.text(undoStack.index() - 1).toStdString();
        step(("undo " + text).c_str(), [this] { undoStack.undo(); });
        step(("redo " + text).c_str(), [this] { undoStack.redo(); });
    }

    TinyRenderer renderer;
    ZUndoStack undoStack;
    TinyTaskQueue tasks;
    std::unique_ptr<zsg::ISceneGraph> root;
};

} // namespace

int main(int argc, char* argv[]) {
    QCoreApplication const application(argc, argv);
    TinyHost host;
    nyxScene& scene = *host.renderer.scene();
    scene.lights.emplace_back(1);
    nyx::ObjectId const lamp(1);
    scene.layers->add_lights({lamp}, nyx::LightLayerId(1));
    scene.surfaces.emplace_back(scene, 1);
    host.root = zsg::ISceneGraph::create(
        {.rtApi = &host.renderer, .taskQueue = &host.tasks, .undoStack = &host.undoStack});
    Printer const printer(*host.root->eventQueue());

    nyx::ColorId color;
    host.step("a colour", [&] {
        color = host.root->colorDB()->createColor("Oak", nyxColor_extended::PlainColor);
    });
    zsg::ColorController& colors = *host.root->colorController();
    host.step("rename it", [&] { colors.setDisplayName(color, "Walnut"); });
    host.undoAndRedo();
    host.step("a colorway", [&] { colors.createColorway("Autumn", {}); });
    host.undoAndRedo();

    zsg::IPainterSurface& surface =
        *host.root->painterManager()->painter()->surface(nyx::SurfaceId(1));
    host.step("a paint layer", [&] { surface.addLayer(0); });
    host.undoAndRedo();
    host.step("its blend mode", [&] { surface.setLayerBlend(0, nyx::ColorBlendMode::Multiply); });
    host.undoAndRedo();

    zsg::ILightLayerController& lights = *host.root->lightLayerController();
    nyx::LightLayerId layer;
    host.step("read the lights", [&] { lights.lightLayerApi()->sync(); });
    host.step("a light layer", [&] { layer = lights.createLayer("Rim"); });
    host.step("a light into it", [&] { lights.addLightsToLayer(layer, {lamp}); });
    host.undoAndRedo();

    nyxLayerInfo const top = scene.surfaces[0].layers()[1];
    std::cout << "in the end: " << host.root->colorDB()->colorName(color) << ", " << top.name
              << " with mode " << static_cast<int>(top.blend_mode) << ", the light's mask "
              << scene.lights[0].mask << '\n';
    host.undoStack.clear();
    host.root.reset();
}
