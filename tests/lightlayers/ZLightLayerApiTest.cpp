#include "zsg/lightlayers/ZLightLayerApi.h"

#include "lightlayers/LightScene.h"
#include "zsg/core/Events.h"
#include "zsg/core/Subscription.h"

#include <iostream>
#include <memory>
#include <stdexcept>

using namespace zsg;

namespace {

using ZLightLayerApiTest = LightScene;

struct Unwilling final : IEventListener {
    void onEvent(Event const* event) override {
        left.reset(event); // nobody deletes an event whose listener throws
        throw std::runtime_error("unwilling");
    }
    std::unique_ptr<Event const> left;
};

TEST_F(ZLightLayerApiTest, changesGoToBothDatabasesInTheirOrder) {
    struct Row {
        std::function<void()> change;
        std::string calls;
    };
    for (auto const& [change, calls] : {
             Row{[&] { EXPECT_EQ(api.createLayer("Accent"), Layer(4)); },
                 "layers.find_unique_name \"Accent\"; layers.create_layer \"Accent 1\" -; "
                 "copy.create_layer \"Accent 1\" 4; > LightLayerUpdated 4"},
             Row{[&] { EXPECT_EQ(api.cloneLayer(accent), Layer(5)); },
                 "layers.create_layer \"dummy\" -; copy.create_layer \"dummy\" 5; "
                 "copy.clone_layer 5 2; layers.clone_layer 5 2; > LightLayerUpdated 5"},
             Row{[&] { api.setLayerName(Layer(5), "Default"); },
                 "copy.get_layer_name 5; layers.find_unique_name \"Default\"; "
                 "copy.set_layer_name 5 \"Default 1\"; layers.set_layer_name 5 \"Default 1\"; "
                 "> LightLayerUpdated 5"},
             Row{[&] {
                     api.addLights(Layer(5), {key, spot});
                 },
                 "copy.add_lights [2 4] 5; change_layer_lights 5 [2 4] 0; > LightLayerUpdated 5"},
             Row{[&] { api.removeLights(Layer(5), {spot}); },
                 "copy.remove_lights [4] 5; change_layer_lights 5 [4] 1; > LightLayerUpdated 5"},
             Row{[&] { api.setFlags(Layer(5), layerFlags::Inverted); },
                 "copy.set_flags 5 1; set_layer_flags 5 1; > LightLayerUpdated 5"},
             Row{[&] { api.deleteLayer(accent); },
                 "copy.delete_layer 2; layers.delete_n_remap_layer 2; > LightLayerUpdated 2"},
             Row{[&] {
                     api.moveLightsToNewLayer({lamp, spot, portal, spot});
                 },
                 "layers.contains 1 7; layers.contains 1 4; layers.contains 1 5; "
                 "layers.contains 1 4; "
                 "copy.add_lights [4 5 4] 1; change_layer_lights 1 [4 5 4] 0; > LightLayerUpdated "
                 "1; layers.find_unique_name \"New Layer\"; layers.create_layer \"New Layer\" -; "
                 "copy.create_layer \"New Layer\" 6; > LightLayerUpdated 6; "
                 "copy.add_lights [4 5 4] 6; change_layer_lights 6 [4 5 4] 0; "
                 "> LightLayerUpdated 6"},
             Row{[&] { api.moveLightsToNewLayer({lamp}); }, "layers.contains 1 7"},
         }) {
        EXPECT_EQ(trace(change), calls);
        EXPECT_EQ(inScene(), working());
    }
    EXPECT_EQ(working(), "1 Default:; 3 Practical: 7; 4 Accent 1:; 5 Default 1/1: 2; "
                         "6 New Layer: 4 5");
    // The working copy follows an assignment at the next sync.
    EXPECT_EQ(trace([&] {
                  api.setItemsLightLayer(practical, {Item(4), rig, Item(2), Item(77), studio});
              }),
              "assign_layer_lights 3 [2 4 5]; > LightLayerUpdated 3");
    EXPECT_EQ(api.lights(practical).size(), 1u);
    EXPECT_EQ(trace([&] { api.sync(); }),
              "copy.sync; layers.environment_light_mask; > LightLayerSynced");
    EXPECT_EQ(working(), "1 Default:; 3 Practical: 2 4 5 7; 4 Accent 1:; 5 Default 1/1:; "
                         "6 New Layer:");
}

TEST_F(ZLightLayerApiTest, sixQueriesReadTheWorkingCopyAndTheOthersTheScene) {
    renderer.lightLayers().add_lights({key}, practical); // behind the working copy's back
    EXPECT_EQ(trace([&] {
                  EXPECT_EQ(api.layerCount(), 3u);
                  EXPECT_EQ(numbers(api.layers()), " 1 2 3");
                  EXPECT_EQ(numbers(api.lights(practical)), " 7");
                  EXPECT_FALSE(api.contains(practical, key));
                  EXPECT_EQ(api.flags(practical), Flags());
                  EXPECT_EQ(api.layerName(practical), "Practical");
              }),
              "copy.get_layer_count; copy.get_layers; copy.get_lights 3; copy.contains 3 2; "
              "copy.flags 3; copy.get_layer_name 3");
    EXPECT_EQ(numbers(api.layersOfItems({Item(7), rig, Item(77)})), " 2 3");
    EXPECT_EQ(numbers(api.getLayerItems(practical)), " 2 7");
    EXPECT_EQ(numbers(api.getLayerItems(accent)), " 4"); // not the portal
    auto const map = api.getLayerIdMap();
    ASSERT_EQ(map.size(), 2u); // layer 1 has no lights
    EXPECT_EQ(numbers(map.at(accent)) + " |" + numbers(map.at(practical)), " 4 | 2 7");
    auto const part = api.getLayerIdMap({studio});
    EXPECT_EQ(numbers(part.at(accent)) + " |" + numbers(part.at(practical)), " 4 | 2");
    EXPECT_TRUE(api.getLayerIdMap({}).empty());
}

TEST_F(ZLightLayerApiTest, emptyNamesAndFullScenesMakeNothing) {
    std::string const before = renderer.dump();
    EXPECT_EQ(trace([&] {
                  EXPECT_EQ(api.createLayer(""), none);
                  EXPECT_EQ(api.createLayer(std::string(1, '\0')), none);
                  api.setLayerName(accent, "");
                  api.setLayerName(accent, "Accent");
              }),
              "copy.get_layer_name 2");
    renderer.faults().failCreations = 3;
    EXPECT_EQ(trace([&] {
                  EXPECT_EQ(api.cloneLayer(accent), none);
                  EXPECT_EQ(api.createLayer("Rim"), none);
                  api.moveLightsToNewLayer({key});
              }),
              "layers.create_layer \"dummy\" -; layers.find_unique_name \"Rim\"; "
              "layers.create_layer \"Rim\" -; layers.contains 1 2; copy.add_lights [2] 1; "
              "change_layer_lights 1 [2] 0; > LightLayerUpdated 1; "
              "layers.find_unique_name \"New Layer\"; layers.create_layer \"New Layer\" -");
    EXPECT_EQ(renderer.dump(), before);
}

TEST_F(ZLightLayerApiTest, whatIsUnknownIsAnnouncedAndChangesNothing) {
    std::string const before = renderer.dump() + working();
    for (Layer const unknown : {Layer(0), Layer(33), none}) {
        EXPECT_EQ(api.layerName(unknown), "");
        EXPECT_TRUE(api.getLayerItems(unknown).empty()); // though objects have no mask, either
        EventTrace events(queue);
        api.addLights(unknown, {key});
        api.removeLights(unknown, {key});
        api.setFlags(unknown, layerFlags::Inverted);
        api.setLayerName(unknown, "Name");
        api.setItemsLightLayer(unknown, {studio});
        api.deleteLayer(unknown);
        std::string const line = EventTrace::line(LightLayerUpdatedEvent(unknown)), lf = "\n";
        EXPECT_EQ(events.take(), line + lf + line + lf + line + lf + line + lf + line + lf + line);
    }
    api.addLights(accent, {});
    api.removeLights(accent, {Light(77), Light(), chair});
    api.setItemsLightLayer(accent, {});
    api.moveLightsToNewLayer({});
    api.deleteLayer(first);
    EXPECT_EQ(renderer.dump() + working(), before);
}

TEST_F(ZLightLayerApiTest, worksWithoutQueueAndWithoutScene) {
    ZLightLayerApi quiet(nullptr, renderer.api());
    EXPECT_EQ(quiet.layerCount(), 0u); // until the first sync
    renderer.faults().noScene = true;
    ZLightLayerApi later(&queue, renderer.api());
    ZLightLayerApi never(&queue, nullptr);
    for (ZLightLayerApi* const blind : {&later, &never, &quiet}) {
        blind->sync();
        EXPECT_TRUE(blind->layersOfItems({studio}).empty());
        EXPECT_TRUE(blind->getLayerItems(accent).empty());
        EXPECT_TRUE(blind->getLayerIdMap().empty());
        blind->setItemsLightLayer(accent, {studio});
        blind->moveLightsToNewLayer({chair});
        blind->deleteLayer(accent);
    }
    EXPECT_EQ(later.createLayer("Top"), none);
    {
        Unwilling listener;
        Subscription const subscription(queue, listener, {EventType::LightLayerUpdated});
        EXPECT_THROW(api.createLayer("Top"), std::runtime_error); // which had its scene before
    }
    EXPECT_EQ(later.cloneLayer(accent), none);
    later.setLayerName(accent, "Top");
    never.addLights(practical, {});
    never.setFlags(practical, {});
    renderer.faults().noScene = false;
    later.sync();
    EXPECT_EQ(text(later), working());
}

TEST_F(ZLightLayerApiTest, theDumpShowsTheWorkingCopyAndTheMaskOfTheLastSync) {
    auto const dumped = [](ILightLayerApi const& shown) {
        testing::internal::CaptureStdout();
        std::cout << std::hex << std::showbase; // as somebody before left it
        shown.dump();
        std::cout << std::dec << std::noshowbase;
        return testing::internal::GetCapturedStdout();
    };
    renderer.setEnvironmentLightMask(4294967295u);
    api.setFlags(accent, layerFlags::Inverted);
    EXPECT_EQ(dumped(api), "Layer ID: 1, Name: Default\n"
                           "Layer ID: 2, Name: Accent\n"
                           "Layer ID: 3, Name: Practical\n"
                           "Environment Light Mask: 1\n"
                           "Light Layers:\n"
                           "  Layer ID: 1, Name: Default\n"
                           "    Flags: 0\n"
                           "    Lights: 2 \n"
                           "  Layer ID: 2, Name: Accent\n"
                           "    Flags: 1\n"
                           "    Lights: 4 5 \n"
                           "  Layer ID: 3, Name: Practical\n"
                           "    Flags: 0\n"
                           "    Lights: 7 \n");
    api.deleteLayer(accent);
    api.sync();
    EXPECT_NE(dumped(api).find("\nEnvironment Light Mask: 4294967293\n"), std::string::npos);
    EXPECT_EQ(dumped(ZLightLayerApi(nullptr, nullptr)),
              "Environment Light Mask: 0\nLight Layers:\n");
}

} // namespace
