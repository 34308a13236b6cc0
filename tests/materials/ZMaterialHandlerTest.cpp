#include "materials/ZMaterialHandler.h"

#include "materials/ZMaterialApi.h"
#include "support/EventTrace.h"
#include "support/Mishaps.h"
#include "support/TestScene.h"
#include "zsg/core/ISceneGraph.h"
#include "zsg/materials/ICMFManager.h"
#include "zsg/materials/IMaterialDescriptor.h"
#include "zsg/materials/IMaterialService.h"
#include "zsg/materials/ZCMFSchema.h"

#include "nyxrender/nyx_material.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <map>
#include <utility>

using namespace zsg;
using nlohmann::json;

namespace {

class Service final : public IMaterialService {
public:
    MaterialId duplicateMaterial(MaterialId) override {
        ADD_FAILURE() << "the first operation is never called";
        return {};
    }
    bool assignMaterial(MaterialId material, nyx::Span<nyx::ObjectId> objects) override {
        lastMaterial = material;
        lastObjects = objects.data();
        lastCount = objects.size();
        return result;
    }
    MaterialId lastMaterial;
    nyx::ObjectId const* lastObjects = nullptr;
    std::size_t lastCount = 0;
    bool result = true;
};

class ZMaterialHandlerTest : public TestScene {
protected:
    ZMaterialHandlerTest() {
        nyxMaterial* const material = nyx_material_from_id(scene(), made.fabric);
        nyx_material_set_cmf_value(*material, "CMF::TEXT::VENDOR", "Norrland");
        nyx_material_set_cmf_value(*material, "Weight", "310 g");
        setStoredMetadata(R"({ "b": 1.0, "a": [true] })");
        renderer.materials().setItems(made.fabric, {201, 7});
        SceneGraphPars pars;
        pars.rtApi = api();
        pars.materialService = &service;
        root = ISceneGraph::create(pars);
        handler = root->materialHandler();
        trace = std::make_unique<EventTrace>(*root->eventQueue());
    }
    void setStoredMetadata(char const* text) {
        nyx_material_set_metadata(*nyx_material_from_id(scene(), made.fabric), text);
    }
    [[nodiscard]] std::string storedMetadata() {
        return nyx_material_metadata(*nyx_material_from_id(scene(), made.fabric));
    }

    SmallScene const made = addSmallScene();
    Service service;
    std::unique_ptr<ISceneGraph> root;
    IMaterialHandler* handler = nullptr;
    std::unique_ptr<EventTrace> trace;
};

} // namespace

TEST_F(ZMaterialHandlerTest, readsWhatTheMaterialSaysOfItself) {
    auto const descriptor = handler->descriptor(made.fabric);
    ASSERT_TRUE(descriptor);
    EXPECT_EQ(descriptor->id(), MaterialId(made.fabric));
    EXPECT_EQ(descriptor->values(), (std::map<std::string, std::string>{
                                        {"CMF::TEXT::VENDOR", "Norrland"}, {"Weight", "310 g"}}));
    EXPECT_EQ(descriptor->value(4), "Norrland");
    EXPECT_EQ(descriptor->metadata(), (json{{"a", {true}}, {"b", 1.0}}));
    EXPECT_EQ(descriptor->items(), (std::vector<unsigned>{201, 7}));
    EXPECT_EQ(handler->materialName(made.fabric), "Fabric");

    EXPECT_FALSE(handler->descriptor(MaterialId(99)));
    EXPECT_EQ(handler->materialName(MaterialId()), QString());
    renderer.faults().noScene = true;
    EXPECT_FALSE(handler->descriptor(made.fabric));
    EXPECT_EQ(handler->materialName(made.fabric), QString());
    EXPECT_EQ(trace->take(), "");

    auto const without = ISceneGraph::create({});
    EXPECT_FALSE(without->materialHandler()->descriptor(made.fabric));
    EXPECT_EQ(without->materialHandler()->materialName(made.fabric), QString());
}

TEST_F(ZMaterialHandlerTest, appliesByReplacingAllValuesInKeyOrderAndAnnouncesIt) {
    auto const descriptor = handler->descriptor(made.fabric);
    descriptor->setValue(0, "Bouclé");
    descriptor->setValue("A", "");
    descriptor->removeValue("Weight");
    EXPECT_EQ(handler->descriptor(made.fabric)->value("Weight"), "310 g") << "it is detached";
    std::string heard;
    trace->reaction = [&] { heard += handler->descriptor(made.fabric)->value(0); };
    EXPECT_TRUE(handler->applyDescriptor(*descriptor));
    EXPECT_EQ(heard, "Bouclé");
    trace->reaction = {};
    takeJournal();
    EXPECT_TRUE(handler->applyDescriptor(*descriptor));
    EXPECT_EQ(takeJournal(), "nyx_material_from_id 1\n"
                             "nyx_material_metadata 1\n"
                             "nyx_material_cmf_values 1\n"
                             "nyx_material_clear_cmf_values 1\n"
                             "nyx_material_set_cmf_value 1 \"A\" \"\"\n"
                             "nyx_material_set_cmf_value 1 \"CMF::TEXT::NAME\" \"Bouclé\"\n"
                             "nyx_material_set_cmf_value 1 \"CMF::TEXT::VENDOR\" \"Norrland\"");
    EXPECT_EQ(trace->take(), "MaterialDescriptionChanged 1\nMaterialDescriptionChanged 1");
    EXPECT_EQ(handler->descriptor(made.fabric)->values(), std::as_const(*descriptor).values());

    // A material that has gone is still told of.
    takeJournal();
    renderer.faults().noScene = true;
    EXPECT_FALSE(handler->applyDescriptor(*descriptor));
    EXPECT_EQ(takeJournal(), "");
    EXPECT_EQ(trace->take(), "MaterialDescriptionChanged 1");
}

TEST_F(ZMaterialHandlerTest, writesMetadataOnlyWhenItDiffers) {
    auto const apply = [this](auto const& change) {
        auto const descriptor = handler->descriptor(made.fabric);
        change(*descriptor);
        EXPECT_TRUE(handler->applyDescriptor(*descriptor));
        return storedMetadata();
    };
    auto const nothing = [](IMaterialDescriptor&) {};
    EXPECT_EQ(apply(nothing), R"({ "b": 1.0, "a": [true] })") << "the spelling is kept";
    EXPECT_EQ(apply([](IMaterialDescriptor& d) { d.setMetadata("b", 1); }),
              R"({"a":[true],"b":1})");
    EXPECT_EQ(apply([](IMaterialDescriptor& d) { d.setMetadata(json()); }), "");

    std::string const deep = std::string(100'000, '[') + std::string(100'000, ']');
    for (std::string const& unreadable : {std::string("{not json"), deep}) {
        setStoredMetadata(unreadable.c_str());
        EXPECT_EQ(handler->descriptor(made.fabric)->metadata(), json());
        EXPECT_EQ(apply(nothing), unreadable) << "what could not be read is left alone";
    }
    EXPECT_EQ(apply([](IMaterialDescriptor& d) { d.setMetadata("a", 2); }), R"({"a":2})");

    trace->take();
    auto const broken = handler->descriptor(made.fabric);
    broken->setValue("Weight", "1 g");
    broken->setMetadata("a", "\xFF");
    std::string const before = renderer.dump();
    EXPECT_THROW(handler->applyDescriptor(*broken), json::type_error);
    EXPECT_EQ(renderer.dump(), before);
    EXPECT_EQ(trace->take(), "");
}

TEST_F(ZMaterialHandlerTest, passesAssignmentsOn) {
    std::vector<nyx::ObjectId> const objects{made.chair, nyx::ObjectId(9)};
    EXPECT_TRUE(handler->assignMaterial(made.frame, objects));
    EXPECT_EQ(service.lastMaterial, MaterialId(made.frame));
    EXPECT_EQ(service.lastObjects, objects.data());
    EXPECT_EQ(service.lastCount, 2u);
    service.result = false;
    EXPECT_FALSE(handler->assignMaterial(MaterialId(), {}));
    EXPECT_FALSE(service.lastMaterial.isValid());
    EXPECT_EQ(trace->take(), "");

    ZMaterialApi own(api());
    ZMaterialHandler without(&own, nullptr, nullptr);
    EXPECT_FALSE(without.assignMaterial(made.frame, objects));
    EXPECT_TRUE(without.applyDescriptor(*handler->descriptor(made.fabric)));
    EXPECT_EQ(trace->take(), "") << "without a root nobody is told";
}

namespace {

struct Studio final : ZMaterialHandlerTest {
    // Texts as metadata: to end a list or an object the JSON library needs memory, and has to have
    // it.
    Studio() {
        trace.reset();
        setStoredMetadata(R"("old")");
        before = said(*handler->descriptor(made.fabric));
    }
    void TestBody() override {}
    IEventQueue& events() { return *root->eventQueue(); }

    Mishaps::Operations operations() {
        change = handler->descriptor(made.fabric);
        change->setValue(4, "Somebody else with a long name");
        change->setMetadata("a text that is longer than what fits in place");
        return {
            [&] { handler->applyDescriptor(*change); },
            [&] {
                root->cmfManager()->setSchema({"Seats", {}});
            },
            [&] { static_cast<void>(handler->materialName(made.fabric)); },
        };
    }
    static json said(IMaterialDescriptor const& d) { return {d.values(), d.metadata()}; }
    void check(std::size_t) {
        json const now = said(*handler->descriptor(made.fabric));
        EXPECT_TRUE(now == before || now == said(*change)) << now;
    }

    json before;
    std::unique_ptr<IMaterialDescriptor> change;
};

} // namespace

// A description is the old one or the new one.
TEST(MaterialMishaps, whateverGoesWrongNothingIsLost) { Mishaps::inTurn<Studio>(); }
