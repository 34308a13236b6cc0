#include "zsg/values/Variant.h"

#include "values/PointerVariant.h"
#include "values/valueSamples.h"

#include "zsg/values/equals.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <string_view>

namespace zsg {
namespace {

TEST(Type, NumbersAndNamesAreFixed) {
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
    }
}

template <class T>
T defaultOf() {
    std::unique_ptr<Variant> const holder(makeVariant(typeOf<T>));
    return *tryGet<T>(*holder);
}

TEST(Variant, DefaultsAreThoseOfTheTable) {
    EXPECT_FALSE(defaultOf<bool>());
    EXPECT_EQ(defaultOf<int>(), 0);
    EXPECT_EQ(defaultOf<double>(), 0.0);
    EXPECT_TRUE(equals(defaultOf<nyxVector>(), nyxVector{0, 0, 0}));
    EXPECT_TRUE(defaultOf<QString>().isEmpty());
    EXPECT_TRUE(defaultOf<FloatArray>().isEmpty());
    nyxMatrix const identity{{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}};
    EXPECT_TRUE(equals(defaultOf<nyxMatrix>(), identity));
    EXPECT_EQ(defaultOf<ZColorExt>(), ZColorExt(0, 0, 0));
    EXPECT_EQ(defaultOf<ZColorExtAlpha>(), ZColorExtAlpha(0, 0, 0, 1));
    EXPECT_EQ(defaultOf<ColorGradient>().getNStops(), 0u);
    EXPECT_EQ(defaultOf<AnimationCurve>().keyCount(), 0);
    EXPECT_TRUE(equals(defaultOf<AxaltaColor>(), AxaltaColor()));
    EXPECT_TRUE(equals(defaultOf<WeavePattern>(), WeavePattern()));
    EXPECT_TRUE(defaultOf<Enumerable>().isEmpty());
    EXPECT_EQ(defaultOf<Enumerable>().getSelection(), 0);
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
    PointerVariant<Enumerable> const pointingToEmpty(&empty);
    ValueVariant<Enumerable> const owningEmpty(empty);
    for (Variant const* const holder : {static_cast<Variant const*>(&pointingToEmpty),
                                        static_cast<Variant const*>(&owningEmpty)}) {
        std::unique_ptr<Variant> const emptyClone(holder->cloneValue());
        EXPECT_EQ(tryGet<Enumerable>(*emptyClone)->getSelection(), 0) << "equal to the default";
    }
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
}

TEST(PointerVariant, ShaderPointersHaveNoOwningHolder) {
    nyxShader* shader = nullptr;
    PointerVariant<nyxShader*> holder(&shader);
    EXPECT_EQ(holder.type(), Type::ShaderBase);
    EXPECT_EQ(holder.cloneValue(), nullptr);
    EXPECT_EQ(tryGet<nyxShader*>(holder), nullptr);
    EXPECT_FALSE(holder.set(&shader));
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
