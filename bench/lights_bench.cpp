// Growth of light layers: what walks the scene, beside a plain walk of the same hierarchy, and what
// must not depend on its size.

#include "Rows.h"
#include "zsg/core/IEventQueue.h"
#include "zsg/core/ISceneGraph.h"
#include "zsg/lightlayers/ILightLayerController.h"
#include "zsg/lightlayers/ZLightLayerApi.h"

#include "nyxembedded/Renderer.h"
#include "nyxrender/nyxGroup_item.h"
#include "nyxrender/nyxLight_layer_db.h"
#include "nyxrender/nyxRT_api.h"
#include "nyxrender/nyxScene_hierarchy.h"
#include "zcore/ZUndoStack.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace {

using nyx::GroupItemId;
using nyx::LightLayerId;
using nyx::ObjectId;

/// Lights in groups of a hundred, those in groups of a hundred; a third each in three layers.
struct Studio {
    explicit Studio(std::size_t size) {
        constexpr std::size_t perGroup = 100;
        GroupItemId hall, group;
        for (std::size_t i = 0; i < size; ++i) {
            if (i % (perGroup * perGroup) == 0) {
                hall = renderer.items().addGroup("Hall");
                halls.push_back(hall);
            }
            if (i % perGroup == 0) {
                group = renderer.items().addGroup("Group", hall);
            }
            lights.push_back(renderer.items().addLight("Light", group));
        }
        renderer.lightLayers().create_layer("Key", {});
        renderer.lightLayers().create_layer("Rim", {});
        for (std::size_t i = 0; i < size; ++i) {
            renderer.lightLayers().add_lights(
                nyx::Span<ObjectId>(&lights[i], 1),
                LightLayerId(static_cast<unsigned>(i * 3 / size) + 1));
        }
        zsg::SceneGraphPars pars;
        pars.rtApi = renderer.api();
        pars.undoStack = &stack;
        root = zsg::ISceneGraph::create(pars);
        controller = root->lightLayerController();
        controller->lightLayerApi()->sync();
        api = std::make_unique<zsg::ZLightLayerApi>(root->eventQueue(), renderer.api());
        api->sync();
    }
    ~Studio() { stack.clear(); }

    nyx::embedded::Renderer renderer;
    std::vector<GroupItemId> halls;
    std::vector<ObjectId> lights;
    ZUndoStack stack;
    std::unique_ptr<zsg::ISceneGraph> root;
    zsg::ILightLayerController* controller = nullptr;
    std::unique_ptr<zsg::ZLightLayerApi> api;
};

/// Studios are big: one of each size for all cases.
Studio& studio(std::size_t size) {
    static std::map<std::size_t, std::unique_ptr<Studio>> studios;
    auto& made = studios[size];
    if (!made) {
        made = std::make_unique<Studio>(size);
    }
    return *made;
}

template <class Action>
void contestant(std::string const& row, std::string const& workload, std::string const& name,
                std::size_t size, Action const& action) {
    bench::contestant(row, workload, name, [size, action](benchmark::State& state) {
        Studio& s = studio(size);
        s.stack.clear();
        for (auto _ : state) {
            action(s);
        }
    });
}

/// What anybody must do who asks every light for its layer.
std::vector<ObjectId> plainWalk(Studio& s) {
    std::vector<ObjectId> found;
    nyx_scene_hierarchy_get(s.renderer.scene())->walk([&](nyxGroup_item const& item) {
        if (item.is_light() && item.light_layer_mask() != 0) {
            found.push_back(item.object_id());
        }
    });
    return found;
}

void walks(std::size_t size, std::string const& lights) {
    std::string const walk = "plain walk";
    auto const row = [&](std::string const& workload, auto const& action) {
        contestant("L1", workload + lights, bench::ours, size, action);
        contestant("L1", workload + lights, walk, size,
                   [](Studio& s) { benchmark::DoNotOptimize(plainWalk(s)); });
        bench::target({"L1", workload + lights, walk, 2});
    };
    row("layersOfItems of all, ",
        [](Studio& s) { benchmark::DoNotOptimize(s.api->layersOfItems(s.halls)); });
    row("getLayerItems, ",
        [](Studio& s) { benchmark::DoNotOptimize(s.api->getLayerItems(LightLayerId(2))); });
    row("getLayerIdMap, ", [](Studio& s) { benchmark::DoNotOptimize(s.api->getLayerIdMap()); });

    std::string const assign = "setItemsLightLayer of all, " + lights;
    contestant("L1", assign, bench::ours, size,
               [](Studio& s) { s.api->setItemsLightLayer(LightLayerId(3), s.halls); });
    contestant("L1", assign, "plain walk, and the renderer's part", size, [](Studio& s) {
        s.renderer.api()->assign_layer_lights(LightLayerId(3), plainWalk(s));
    });
    bench::target({"L1", assign, "plain walk, and the renderer's part", 2});
    contestant("L1", "sync, " + lights, bench::ours, size, [](Studio& s) { s.api->sync(); });
    contestant("L1", "sync, " + lights, walk, size,
               [](Studio& s) { benchmark::DoNotOptimize(plainWalk(s)); });
}

void flat() {
    struct Case {
        std::string name;
        std::function<void(Studio&)> run;
    };
    std::vector<Case> const cases{
        {"add and remove 10 lights, undo both",
         [](Studio& s) {
             nyx::Span<ObjectId> const ten(s.lights.data(), 10);
             s.controller->addLightsToLayer(LightLayerId(2), ten);
             s.controller->removeLightsFromLayer(LightLayerId(2), ten);
             s.stack.undo();
             s.stack.undo();
         }},
        {"setLayerFlags",
         [](Studio& s) { s.controller->setLayerFlags(LightLayerId(2), layerFlags::None); }},
        {"layerName",
         [](Studio& s) { benchmark::DoNotOptimize(s.api->layerName(LightLayerId(2))); }},
        {"one more light, merged",
         [](Studio& s) {
             s.controller->addLightsToLayer(LightLayerId(2),
                                            nyx::Span<ObjectId>(s.lights.data(), 1));
         }},
    };
    for (Case const& c : cases) {
        contestant("L2", c.name + ", 1,000 lights", bench::ours, 1000, c.run);
        contestant("L2", c.name + ", 1,000,000 lights", bench::ours, 1'000'000, c.run);
        bench::target(
            {"L2", c.name + ", 1,000,000 lights", bench::ours, 1.5, c.name + ", 1,000 lights"});
    }
}

[[maybe_unused]] bool const registered = [] {
    walks(1000, "1,000 lights");
    walks(100'000, "100,000 lights");
    walks(1'000'000, "1,000,000 lights");
    flat();
    return true;
}();

} // namespace
