#include "zsg/core/Events.h"

#include "support/EventTrace.h"

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

using namespace zsg;

namespace {

TEST(Events, everyKindHasItsNumberTextAndPayload) {
    // One line per kind in the order of their numbers.
    auto check = [number = 0u](char const* text, char const* line, Event const& event) mutable {
        SCOPED_TRACE(line);
        EXPECT_EQ(static_cast<unsigned int>(event.type()), number++);
        EXPECT_STREQ(eventTypeString(event.type()), text);
        EXPECT_EQ(EventTrace::line(event), line);
    };
    check("MaterialUpdated", "MaterialUpdated 7", MaterialUpdatedEvent(MaterialId(7)));
    check("MaterialDescriptionChanged", "MaterialDescriptionChanged 8",
          MaterialDescriptionChangedEvent(nyx::MaterialId(8)));
    check("ShaderNodeChanged", "ShaderNodeChanged 1 2",
          ShaderNodeChangedEvent(MaterialId(1), ShaderNodeId(2)));
    check("CMFSchemaChanged", "CMFSchemaChanged", CMFSchemaChangedEvent());
    check("PaintLayersUpdated", "PaintLayersUpdated 9", PaintLayersUpdatedEvent(nyx::SurfaceId(9)));
    check("ViewportToolStarted", "ViewportToolStarted 40",
          ViewportToolStartedEvent(ViewportToolStartedEvent::ToolType{40}));
    check("ColorCreated", "ColorCreated 3", ColorEvent(nyx::ColorId(3)));
    check("ColorIdChangeEvent", "ColorIdChangeEvent 4 5",
          ColorIdChangeEvent(nyx::ColorId(4), nyx::ColorId(5)));
    check("ColorUpdated", "ColorUpdated invalid", ColorUpdatedEvent(nyx::ColorId()));
    check("ColorSynced", "ColorSynced 0", ColorSyncedEvent(nyx::ColorId(0)));
    check("ColorwaySynced", "ColorwaySynced 6", ColorwaySyncedEvent(nyx::ColorwayId(6)));
    check("ColorWayUpdated", "ColorWayUpdated 6", ColorwayUpdatedEvent(nyx::ColorwayId(6)));
    check("Unknown event type", "LightLayerUpdated 32",
          LightLayerUpdatedEvent(nyx::LightLayerId(32)));
    check("Unknown event type", "LightLayerSynced", LightLayerSyncedEvent());
    for (unsigned int const value : {14u, 99u, 0xFFFFFFFFu}) {
        EXPECT_STREQ(eventTypeString(EventType(value)), "Unknown event type");
    }
}

ColorEvent const firstOfTheProcess{nyx::ColorId(1)};

TEST(Events, serialNumbersCountConstructionsAndStayWithCopies) {
    EXPECT_EQ(firstOfTheProcess.eventId(), 0u);
    ColorEvent first(nyx::ColorId(1));
    LightLayerSyncedEvent const second;
    unsigned int const base = first.eventId();
    EXPECT_EQ(second.eventId(), base + 1);

    ColorEvent copy(first);
    ColorEvent assigned(nyx::ColorId(2));
    EXPECT_EQ(assigned.eventId(), base + 2);
    assigned = copy;
    ColorEvent const moved(std::move(copy));
    EXPECT_EQ(assigned.eventId(), base);
    EXPECT_EQ(assigned.colorId(), nyx::ColorId(1));
    EXPECT_EQ(moved.eventId(), base);
    EXPECT_EQ(ShaderNodeChangedEvent({}, {}).eventId(), base + 3) << "copies count nothing";
}

TEST(Ids, areOrderedNumbersOfDistinctTypes) {
    MaterialId const none;
    EXPECT_FALSE(none.isValid());
    EXPECT_TRUE(MaterialId(0).isValid());
    EXPECT_LT(MaterialId(0), MaterialId(0x80000000u)) << "compared without sign";
    EXPECT_GT(none, MaterialId(0xFFFFFFFEu));
    static_assert(sizeof(MaterialId) == 4 && sizeof(ShaderNodeId) == 4 &&
                  sizeof(ShaderEdgeId) == 4);
    static_assert(!std::is_convertible_v<ShaderNodeId, ShaderEdgeId>);
    static_assert(!std::is_constructible_v<MaterialId, ShaderNodeId>);

    MaterialId const here = nyx::MaterialId(12);
    nyx::MaterialId const there = here;
    EXPECT_EQ(here.toUint(), 12u);
    EXPECT_EQ(there.toUint(), 12u);
    EXPECT_FALSE(nyx::MaterialId(MaterialId()).isValid());
}

} // namespace
