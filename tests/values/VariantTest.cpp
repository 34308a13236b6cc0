#include "zsg/values/Variant.h"

#include "values/PointerVariant.h"
#include "values/valueSamples.h"
#include "zsg/values/equals.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <sstream>
#include <string_view>

namespace zsg {
namespace {

TEST(Type, NumbersNamesAndDefaultsAreFixed) {
    std::ostringstream defaults;
    constexpr std::string_view names[] = {
        "Null",       "Boolean",       "Integer",        "IntegerList", "Float",
        "Float2",     "Float3",        "Double",         "Double3",     "String",
        "StringList", "FilePath",      "Matrix",         "Color",       "ColorAlpha",
        "FloatArray", "ColorGradient", "AnimationCurve", "AxaltaColor", "WeavePattern",
        "Enumerable"};
    constexpr std::string_view shaders[] = {"ShaderBase", "ShaderSurface",  "ShaderLabel",
                                            "ShaderBump", "ShaderGeometry", "ShaderUv"};
    for (int number = -2; number <= 0x10010; ++number) {
        std::string_view const expected = number >= 0 && number <= 20 ? names[number]
                                          : number == 0x1000          ? "Node"
                                          : number >= 0x10000 && number <= 0x10005
                                              ? shaders[number - 0x10000]
                                              : "(invalid type)";
        auto const type = static_cast<Type>(number);
        ASSERT_EQ(typeName(type), expected) << number;
        std::unique_ptr<Variant> const holder(makeVariant(type));
        ASSERT_EQ(holder != nullptr, number >= 1 && number <= 20) << number;
        if (holder) {
            defaults << *holder << "; ";
        }
    }
    EXPECT_EQ(defaults.str(),
              "0; 0; ; 0; <0, 0>; <0, 0, 0>; 0; <0, 0, 0>; \"\"; 0 elements; \"\"; Matrix(); "
              "RGB(0, 0, 0); RGBA(0, 0, 0, 1); FloatArray(); ColorGradient(); AnimationCurve(); "
              "AxaltaColor(); WeavePattern(); Enumerable(); ");
    std::unique_ptr<Variant> const matrix(makeVariant(Type::Matrix));
    EXPECT_TRUE(equals(*tryGet<nyxMatrix>(*matrix),
                       nyxMatrix{{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}}));
}

TEST(Variant, TheBaseHoldsNothing) {
    Variant base;
    Variant target;
    int value = 7;
    EXPECT_EQ(base.type(), Type::Null);
    EXPECT_FALSE(base.set(&value));
    base.get(&value);
    EXPECT_EQ(value, 7);
    EXPECT_FALSE(base.copyTo(target));
    EXPECT_EQ(base.cloneValue(), nullptr);
    EXPECT_FALSE(tryGet<int>(base));
}

template <class Color>
void expectDetachedCopy() {
    ValueVariant<Color> const source(test::sample<Color>());
    std::unique_ptr<Variant> const target(makeVariant(typeOf<Color>));
    EXPECT_TRUE(source.copyTo(*target));
    // getColor refers into the data that copies of the value share.
    EXPECT_EQ(&tryGet<Color>(source)->getColor(0), &tryGet<Color>(source)->getColor(0));
    EXPECT_NE(&tryGet<Color>(*target)->getColor(0), &tryGet<Color>(source)->getColor(0));
    std::unique_ptr<Variant> const clone(source.cloneValue());
    EXPECT_NE(&tryGet<Color>(*clone)->getColor(0), &tryGet<Color>(source)->getColor(0));
}

TEST(Variant, OnlyOwningHoldersOfColorsHandOverDetachedCopies) {
    expectDetachedCopy<ZColorExt>();
    expectDetachedCopy<ZColorExtAlpha>();
    ZColorExt field = test::sample<ZColorExt>();
    ZColorExt other;
    PointerVariant<ZColorExt> target(&other);
    EXPECT_TRUE(PointerVariant<ZColorExt>(&field).copyTo(target));
    EXPECT_EQ(&other.getColor(0), &field.getColor(0));
}

TEST(Variant, SelectionsTravelOnlyWithChangedOptions) {
    Enumerable options = test::sample<Enumerable>();
    Enumerable reselected = options;
    reselected.setSelection(1);

    ValueVariant<Enumerable> owning(options);
    EXPECT_FALSE(owning.set(&reselected));
    EXPECT_EQ(tryGet<Enumerable>(owning)->getSelection(), 0);

    PointerVariant<Enumerable> pointing(&options);
    EXPECT_FALSE(pointing.set(&reselected));
    EXPECT_EQ(options.getSelection(), 1);

    std::unique_ptr<Variant> const clone(pointing.cloneValue());
    EXPECT_EQ(tryGet<Enumerable>(*clone)->getSelection(), 1);

    Enumerable empty;
    empty.setSelection(3);
    std::unique_ptr<Variant> const ofPointer(PointerVariant<Enumerable>(&empty).cloneValue());
    std::unique_ptr<Variant> const ofOwner(ValueVariant<Enumerable>(empty).cloneValue());
    EXPECT_EQ(tryGet<Enumerable>(*ofPointer)->getSelection(), 0) << "equal to the default";
    EXPECT_EQ(tryGet<Enumerable>(*ofOwner)->getSelection(), 0);
}

TEST(PointerVariant, WritesEqualValuesReportsChangesAndClonesIntoAnOwner) {
    float field = 0.0f;
    PointerVariant<float> holder(&field);
    EXPECT_EQ(holder.type(), Type::Float);
    float const negativeZero = -0.0f;
    EXPECT_FALSE(holder.set(&negativeZero));
    EXPECT_TRUE(std::signbit(field)) << "written although equal";
    float const one = 1;
    EXPECT_TRUE(holder.set(&one));
    EXPECT_EQ(field, 1);
    EXPECT_EQ(tryGet<float>(holder), 1);

    std::unique_ptr<Variant> const clone(holder.cloneValue());
    float const two = 2;
    EXPECT_FALSE(clone->set(&one));
    EXPECT_TRUE(clone->set(&two));
    EXPECT_EQ(field, 1);

    nyxShader* shader = nullptr;
    PointerVariant<nyxShader*> shaders(&shader);
    EXPECT_EQ(shaders.cloneValue(), nullptr) << "there is no owning holder";
    EXPECT_EQ(tryGet<nyxShader*>(shaders), nullptr);
    EXPECT_FALSE(shaders.set(&shader));
}

#if !defined(QT_NO_DEBUG) && GTEST_HAS_DEATH_TEST
TEST(VariantDeathTest, CopyingIntoAnotherTypeIsCaughtInDebugBuilds) {
    ValueVariant<int> const source(1);
    ValueVariant<QString> target({});
    EXPECT_DEATH(source.copyTo(target), "target.type");
}
#endif

} // namespace
} // namespace zsg
