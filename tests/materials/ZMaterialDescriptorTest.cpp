#include "zsg/materials/ZMaterialDescriptor.h"

#include "materials/metadataText.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <utility>

using namespace zsg;
using nlohmann::json;

namespace {

using Values = std::map<std::string, std::string>;

TEST(ZMaterialDescriptor, keepsValuesUnderKeysAndFields) {
    ZMaterialDescriptor descriptor(MaterialId(4), {7, 7, 1});
    EXPECT_EQ(descriptor.id(), MaterialId(4));
    EXPECT_TRUE(descriptor.hasItems());
    EXPECT_EQ(descriptor.items(), (std::vector<unsigned>{7, 7, 1}));
    EXPECT_FALSE(ZMaterialDescriptor(MaterialId(), {}).hasItems());
    EXPECT_EQ(descriptor.values(), Values());

    descriptor.setValue("b", "1");
    descriptor.setValue("b", "2");
    descriptor.setValue("a", "");
    descriptor.setValue("", "nothing");
    descriptor.setValue(0, "Oak");
    EXPECT_EQ(descriptor.values(), (Values{{"CMF::TEXT::NAME", "Oak"}, {"a", ""}, {"b", "2"}}));
    EXPECT_TRUE(descriptor.hasValue("a"));
    EXPECT_FALSE(descriptor.hasValue(""));
    EXPECT_EQ(descriptor.value(0), "Oak");
    EXPECT_EQ(descriptor.value(6), "");
    EXPECT_EQ(descriptor.value("c"), "");
    descriptor.removeValue("c");
    descriptor.removeValue("a");
    descriptor.removeValue(0);
    descriptor.removeValue(6);
    descriptor.reserved();
    EXPECT_EQ(descriptor.values(), (Values{{"b", "2"}}));
    for (int const field : {-1, 7}) {
        EXPECT_THROW(descriptor.setValue(field, "x"), std::out_of_range);
        EXPECT_THROW((void)descriptor.value(field), std::out_of_range);
        EXPECT_THROW(descriptor.removeValue(field), std::out_of_range);
    }
    EXPECT_EQ(descriptor.values(), (Values{{"b", "2"}}));
}

TEST(ZMaterialDescriptor, editingACopyLeavesTheOriginal) {
    ZMaterialDescriptor original(MaterialId(4), {1});
    original.setValue("a", "1");
    original.setValue(2, "Oak");
    EXPECT_EQ(&original.values(), &original.values()) << "it may be kept until a copy is made";
    Values const before = std::as_const(original).values();
    std::vector<void (*)(ZMaterialDescriptor&)> const edits{
        [](ZMaterialDescriptor& d) { d.setValue("a", "2"); },
        [](ZMaterialDescriptor& d) { d.setValue(2, "Ash"); },
        [](ZMaterialDescriptor& d) { d.removeValue("a"); },
        [](ZMaterialDescriptor& d) { d.removeValue(2); },
        [](ZMaterialDescriptor& d) { d.values()["b"] = "3"; },
    };
    for (auto const edit : edits) {
        ZMaterialDescriptor copy(original);
        EXPECT_EQ(&std::as_const(copy).values(), &std::as_const(original).values()) << "shared";
        edit(copy);
        EXPECT_NE(std::as_const(copy).values(), before);
        EXPECT_EQ(std::as_const(original).values(), before);

        copy = original;
        edit(original);
        EXPECT_EQ(std::as_const(copy).values(), before);
        original = copy;
    }
    // NOLINTNEXTLINE(performance-move-const-arg): moving is copying.
    ZMaterialDescriptor const moved(std::move(original));
    EXPECT_EQ(original.value("a"), "1"); // NOLINT(bugprone-use-after-move)
}

TEST(ZMaterialDescriptor, keepsMetadataOfAnyShape) {
    ZMaterialDescriptor descriptor(MaterialId(4), {});
    EXPECT_EQ(descriptor.metadata(), json());
    descriptor.removeMetadata("a");
    EXPECT_EQ(descriptor.metadata("a"), json());
    EXPECT_EQ(descriptor.metadata(), json()) << "reading and removing make no object";

    descriptor.setMetadata("a", json::array({1, 2}));
    descriptor.setMetadata("b", "x");
    EXPECT_EQ(descriptor.metadata("a"), json::array({1, 2}));
    EXPECT_EQ(descriptor.metadata("c"), json());
    descriptor.removeMetadata("a");
    descriptor.removeMetadata("c");
    EXPECT_EQ(descriptor.metadata(), (json{{"b", "x"}}));

    for (json const& other : {json::array({1}), json(3), json("text"), json(true)}) {
        descriptor.setMetadata(other);
        EXPECT_EQ(descriptor.metadata("0"), json());
        descriptor.removeMetadata("0");
        EXPECT_THROW(descriptor.setMetadata("a", 1), json::type_error);
        EXPECT_EQ(descriptor.metadata(), other);
    }
    ZMaterialDescriptor copy(descriptor);
    copy.setMetadata(json::object());
    EXPECT_EQ(descriptor.metadata(), json(true));
}

TEST(ZMaterialDescriptor, takesMetadataThatCanBeReadBackOnly) {
    auto const nested = [](int depth) {
        json value = json::array();
        for (int around = 1; around < depth; ++around) {
            json outer = json::array();
            outer.push_back(std::move(value));
            value = std::move(outer);
        }
        return value;
    };
    json const deepest = nested(512);
    ZMaterialDescriptor descriptor(MaterialId(4), {});
    descriptor.setMetadata(deepest);
    descriptor.setMetadata(nested(513));
    descriptor.setMetadata(nested(1'000'000));
    EXPECT_EQ(descriptor.metadata(), deepest);
    bool readable = false;
    EXPECT_EQ(metadataFromText(metadataToText(deepest), readable), deepest);
    EXPECT_TRUE(readable);
    EXPECT_EQ(metadataFromText(metadataToText(nested(513)), readable), json());
    EXPECT_FALSE(readable);

    descriptor.setMetadata(json::object());
    descriptor.setMetadata("a", nested(511));
    descriptor.setMetadata("a", deepest);
    descriptor.setMetadata("b", deepest);
    EXPECT_EQ(descriptor.metadata(), (json{{"a", nested(511)}}));
}

} // namespace
