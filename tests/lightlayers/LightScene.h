#pragma once

#include "core/ZEventQueue.h"
#include "lightlayers/ZLightLayerController.h"
#include "support/EventTrace.h"
#include "support/TestScene.h"
#include "support/lines.h"
#include "zsg/lightlayers/ZLightLayerApi.h"

#include "nyxrender/nyxLight_layer_db.h"
#include "zcore/ZUndoStack.h"

#include <regex>
#include <string>

/// The ids of a list, with blanks before them.
std::string numbers(auto const& ids) {
    std::string text;
    for (auto const id : ids) {
        text += ' ' + std::to_string(id.toUint());
    }
    return text;
}

/// A synchronised light-layer API over an embedded renderer with seven items and three layers.
class LightScene : public TestScene, public zsg::IEventListener {
protected:
    using Layer = nyx::LightLayerId;
    using Light = nyx::ObjectId;
    using Item = nyx::GroupItemId;
    using Flags = nyx::Flags<layerFlags>;

    LightScene() {
        queue.subscribe(this, zsg::EventType::LightLayerUpdated);
        queue.subscribe(this, zsg::EventType::LightLayerSynced);
        renderer.lightLayers().create_layer("Accent", none);
        renderer.lightLayers().create_layer("Practical", none);
        renderer.lightLayers().add_lights({spot, portal}, accent);
        renderer.lightLayers().add_lights({lamp}, practical);
        renderer.items().setUnlisted(portal, true);
        api.sync();
    }

    /// The live layers that are read through an API, with their flags and lights.
    static std::string text(zsg::ILightLayerApi const& api) {
        std::string text;
        for (Layer const layer : api.layers()) {
            unsigned const flags = api.flags(layer).bits();
            text += (text.empty() ? "" : "; ") + std::to_string(layer.toUint()) + ' ' +
                    api.layerName(layer) + (flags ? '/' + std::to_string(flags) : "") + ':' +
                    numbers(api.lights(layer));
        }
        return text;
    }
    std::string working() const { return text(api); }
    std::string inScene() {
        zsg::ZLightLayerApi other(nullptr, renderer.api());
        other.sync();
        return text(other);
    }

    void onEvent(zsg::Event const* event) override {
        lines += takeJournal() + "\n> " + EventTrace::line(*event) + '\n';
    }

    /// The calls to the renderer and, marked with "> ", the events, with "; " between them. "copy"
    /// is the working copy of the scene's "layers".
    std::string trace(std::function<void()> const& action) {
        takeJournal();
        lines.clear();
        action();
        lines += takeJournal();
        lines = std::regex_replace(lines, std::regex("light_layers_copy"), "copy");
        lines = std::regex_replace(lines, std::regex("light_layers"), "layers");
        return selectLines(lines, "; ", [](std::string const&) { return true; });
    }

    static constexpr Layer none{};
    Item const studio = renderer.items().addGroup("Studio");         // 1
    Light const key = renderer.items().addLight("Key", studio);      // 2
    Item const rig = renderer.items().addGroup("Rig", studio);       // 3
    Light const spot = renderer.items().addLight("Spot", rig);       // 4
    Light const portal = renderer.items().addLight("Portal", rig);   // 5, left out of lists
    Light const chair = renderer.items().addObject("Chair", studio); // 6
    Light const lamp = renderer.items().addLight("Lamp");            // 7
    static constexpr Layer first{1}, accent{2}, practical{3};        ///< key; spot and portal; lamp

    zsg::ZEventQueue queue;
    zsg::ZLightLayerApi api{&queue, renderer.api()};

private:
    std::string lines;
};

/// The same with a controller.
class LightEditScene : public LightScene {
protected:
    void TearDown() override { stack.clear(); }

    ZUndoStack stack;
    zsg::ZLightLayerController edit{&api, &stack};
};
