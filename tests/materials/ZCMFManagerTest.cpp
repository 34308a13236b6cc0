#include "materials/ZCMFManager.h"

#include "support/EventTrace.h"
#include "zsg/core/ISceneGraph.h"
#include "zsg/materials/cmfFieldKey.h"

#include <climits>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

using namespace zsg;

namespace {

TEST(ZCMFManager, startsWithTheBuiltInSchemaAndAnnouncesEveryReplacement) {
    auto const root = ISceneGraph::create({});
    ICMFManager* const manager = root->cmfManager();
    ASSERT_NE(manager, nullptr);
    std::string text;
    for (ZCMFAttribute const& a : manager->schema().attributes) {
        text += a.name.toStdString() + (a.visible ? " shown " : " hidden ") +
                std::to_string(static_cast<int>(a.kind)) + '\n';
    }
    EXPECT_EQ(manager->schema().schemaName, "default");
    EXPECT_EQ(text, "Name shown 0\nColor shown 0\nFinish shown 0\nMaterial shown 0\n"
                    "Vendor shown 0\nReference Image shown 1\nNotes shown 0\n");

    EventTrace trace(*root->eventQueue());
    ZCMFSchema given{"Seats", {{"Seam", false, ZCMFAttributeKind::Color4, "thread"}}};
    trace.reaction = [&] { EXPECT_EQ(manager->schema(), given) << "heard before it is so"; };
    manager->setSchema(given);
    EXPECT_EQ(trace.take(), "CMFSchemaChanged");
    EXPECT_EQ(manager->schema(), given);
    manager->setSchema(given);
    manager->setSchema(manager->schema());
    EXPECT_EQ(trace.take(), "CMFSchemaChanged\nCMFSchemaChanged");
    EXPECT_EQ(manager->schema(), given);
    given.attributes.clear();
    EXPECT_EQ(manager->schema().attributes.size(), 1u) << "a copy is kept";

    ZCMFManager alone(nullptr);
    alone.setSchema(given);
    EXPECT_EQ(alone.schema(), given);
}

TEST(cmfFieldKey, namesTheFieldsThatMaterialsStore) {
    char const* const keys[] = {"CMF::TEXT::NAME",      "CMF::TEXT::COLOR",  "CMF::TEXT::MATERIAL",
                                "CMF::TEXT::FINISH",    "CMF::TEXT::VENDOR", "CMF::TEXT::NOTES",
                                "CMF::IMAGE::THUMBNAIL"};
    ASSERT_EQ(cmfFieldCount, 7);
    for (int field = 0; field < cmfFieldCount; ++field) {
        EXPECT_EQ(cmfFieldKey(field), keys[field]);
    }
    for (int const field : {-1, 7, INT_MIN, INT_MAX}) {
        EXPECT_THROW((void)cmfFieldKey(field), std::out_of_range) << field;
    }
}

} // namespace
