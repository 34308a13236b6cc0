#include "zsg/values/Variant.h"

#include "values/PointerVariant.h"
#include "values/valueSamples.h"

#include "zsg/values/equals.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>

namespace zsg {
namespace {

TEST(Type, NumbersAndNamesAreFixed) {
    struct Row {
        int number;
        char const* name;
    };
    constexpr Row rows[] = {
        {0, "Null"},
        {1, "Boolean"},
        {2, "Integer"},
        {3, "IntegerList"},
        {4, "Float"},
        {5, "Float2"},
        {6, "Float3"},
        {7, "Double"},
        {8, "Double3"},
        {9, "String"},
        {10, "StringList"},
        {11, "FilePath"},
        {12, "Matrix"},
        {13, "Color"},
        {14, "ColorAlpha"},
        {15, "FloatArray"},
        {16, "ColorGradient"},
        {17, "AnimationCurve"},
        {18, "AxaltaColor"},
        {19, "WeavePattern"},
        {20, "Enumerable"},
        {0x1000, "Node"},
        {0x10000, "ShaderBase"},
        {0x10001, "ShaderSurface"},
        {0x10002, "ShaderLabel"},
        {0x10003, "ShaderBump"},
        {0x10004, "ShaderGeometry"},
        {0x10005, "ShaderUv"},
        {-1, "(invalid type)"},
        {21, "(invalid type)"},
        {0xFFF, "(invalid type)"},
        {0x1001, "(invalid type)"},
        {0xFFFF, "(invalid type)"},
        {0x10006, "(invalid type)"},
    };
    for (Row const& row : rows) {
        auto const type = static_cast<Type>(row.number);
        EXPECT_STREQ(typeName(type), row.name) << row.number;
        std::unique_ptr<Variant> const holder(makeVariant(type));
        EXPECT_EQ(holder != nullptr, row.number >= 1 && row.number <= 20) << row.number;
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

TEST(Variant, HoldersOfOneTypeDoNotShareChanges) {
    std::unique_ptr<Variant> const first(makeVariant(Type::WeavePattern));
    WeavePattern const plain = WeavePattern::makePlain();
    EXPECT_TRUE(first->set(&plain));
    EXPECT_TRUE(equals(defaultOf<WeavePattern>(), WeavePattern()));
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

TEST(Variant, NanAlwaysCountsAsAChange) {
    float const nan = std::numeric_limits<float>::quiet_NaN();
    ValueVariant<float> holder(0);
    EXPECT_TRUE(holder.set(&nan));
    EXPECT_TRUE(holder.set(&nan));
}

TEST(Variant, AnOwningColorHolderHandsOverADetachedCopy) {
    ValueVariant<ZColorExt> const source(test::sample<ZColorExt>());
    ZColorExt field;
    PointerVariant<ZColorExt> target(&field);
    EXPECT_TRUE(source.copyTo(target));
    // getColor refers into the data that the value shares.
    ZColorExt const held = *tryGet<ZColorExt>(source);
    EXPECT_NE(&field.getColor(0), &held.getColor(0));

    ZColorExt other;
    PointerVariant<ZColorExt> second(&other);
    EXPECT_TRUE(target.copyTo(second));
    EXPECT_EQ(&other.getColor(0), &field.getColor(0)) << "a pointer holder passes its target on";
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
    std::unique_ptr<Variant> const emptyClone(ValueVariant<Enumerable>(empty).cloneValue());
    EXPECT_EQ(tryGet<Enumerable>(*emptyClone)->getSelection(), 0) << "equal to the default";
}

TEST(PointerVariant, WritesEqualValuesAndReportsChanges) {
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
}

TEST(PointerVariant, ClonesIntoAnOwningHolder) {
    int field = 5;
    std::unique_ptr<Variant> clone(PointerVariant<int>(&field).cloneValue());
    ASSERT_TRUE(clone);
    int const changed = 6;
    EXPECT_TRUE(clone->set(&changed));
    EXPECT_EQ(field, 5);
    EXPECT_EQ(tryGet<int>(*clone), 6);
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
