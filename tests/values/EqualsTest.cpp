#include "zsg/values/equals.h"

#include "values/valueSamples.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace zsg {
namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr float nanf = std::numeric_limits<float>::quiet_NaN();

TEST(Equals, NumbersAreComparedExactly) {
    EXPECT_TRUE(equals(0.0f, -0.0f));
    EXPECT_FALSE(equals(1.0f, std::nextafter(1.0f, 2.0f)));
    EXPECT_FALSE(equals(nanf, nanf));
    EXPECT_FALSE(equals(nan, nan));
    int one = 0;
    auto* const shader = reinterpret_cast<nyxShader*>(&one);
    EXPECT_FALSE(equals<nyxShader*>(shader, nullptr));
}

TEST(Equals, EveryComponentCounts) {
    EXPECT_TRUE(equals(nyxVector2f{1, 2}, nyxVector2f{1, 2}));
    EXPECT_FALSE(equals(nyxVector2f{1, 2}, nyxVector2f{0, 2}));
    EXPECT_FALSE(equals(nyxVector2f{1, 2}, nyxVector2f{1, 0}));
    for (int i = 0; i < 3; ++i) {
        float floats[] = {1, 2, 3};
        floats[i] = 9;
        nyxVectorf const vectorf{floats[0], floats[1], floats[2]};
        EXPECT_FALSE(equals(nyxVectorf{1, 2, 3}, vectorf)) << i;
        nyxVector const vector{floats[0], floats[1], floats[2]};
        EXPECT_FALSE(equals(nyxVector{1, 2, 3}, vector)) << i;
        nyxColor const color{floats[0], floats[1], floats[2]};
        EXPECT_FALSE(equals(nyxColor{1, 2, 3}, color)) << i;
        nyxColor_rgba const rgba{floats[0], floats[1], floats[2], 4};
        EXPECT_FALSE(equals(nyxColor_rgba{1, 2, 3, 4}, rgba)) << i;
    }
    EXPECT_FALSE(equals(nyxColor_rgba{1, 2, 3, 4}, nyxColor_rgba{1, 2, 3, nanf}));
}

TEST(Equals, MatricesDifferOnlyWhereOneIsLessOrGreater) {
    nyxMatrix const matrix = test::sample<nyxMatrix>();
    for (int i = 0; i < 16; ++i) {
        nyxMatrix other = matrix;
        other.m[i] = -100;
        EXPECT_FALSE(equals(matrix, other)) << i;
        EXPECT_FALSE(equals(other, matrix)) << i;
        other.m[i] = nan;
        EXPECT_TRUE(equals(matrix, other)) << i;
        EXPECT_TRUE(equals(other, other)) << i;
        other.m[(i + 5) % 16] += 1;
        EXPECT_FALSE(equals(matrix, other)) << "beside a NaN";
    }
}

TEST(Equals, FloatArraysAreComparedNumberByNumber) {
    EXPECT_TRUE(equals(FloatArray{0.0f, 1}, FloatArray{-0.0f, 1}));
    EXPECT_FALSE(equals(FloatArray{1}, FloatArray{1, 2}));
    FloatArray const withNan{1, nanf};
    EXPECT_TRUE(equals(withNan, FloatArray(withNan))) << "the same storage";
    EXPECT_FALSE(equals(withNan, FloatArray{1, nanf}));
    // Lengths around whole blocks, a difference at each end.
    for (qsizetype const size : {1, 63, 64, 65, 128, 1000}) {
        FloatArray const zeros(size, 0.0f);
        EXPECT_TRUE(equals(zeros, FloatArray(size, -0.0f))) << size;
        FloatArray other(size, 0.0f);
        other.last() = 1;
        EXPECT_FALSE(equals(zeros, other)) << size;
        other.last() = 0;
        other.first() = 1;
        EXPECT_FALSE(equals(zeros, other)) << size;
    }
}

TEST(Equals, ListsAndTexts) {
    EXPECT_TRUE(equals(QList<int>{1, 2}, QList<int>{1, 2}));
    EXPECT_FALSE(equals(QList<int>{1, 2}, QList<int>{1, 2, 3}));
    EXPECT_FALSE(equals(QList<int>{1, 2}, QList<int>{1, 3}));
    EXPECT_FALSE(equals(QList<QString>{"a", "b"}, QList<QString>{"a", "B"}));
    EXPECT_FALSE(equals(QList<QString>{"a"}, QList<QString>{"a", ""}));
    EXPECT_TRUE(equals(QString(), QString(""))) << "null and empty are one text";
    EXPECT_FALSE(equals(FilePath(QString("a")), FilePath(QString("A"))));
}

TEST(Equals, MarksAndSelectionsAreLeftOut) {
    Enumerable const options{{1, "a"}, {2, "b"}};
    Enumerable other = options;
    other.setSelection(1);
    EXPECT_TRUE(equals(options, other));
    EXPECT_FALSE(equals(options, Enumerable{{1, "a"}, {3, "b"}}));
    EXPECT_FALSE(equals(options, Enumerable{{1, "a"}, {2, "c"}}));
    EXPECT_FALSE(equals(options, Enumerable{{1, "a"}}));

    AxaltaColor changed;
    changed.setChanged(true);
    EXPECT_TRUE(equals(changed, AxaltaColor()));
    ZColorExt revised = test::sample<ZColorExt>();
    revised.setRevision(9);
    EXPECT_TRUE(equals(revised, test::sample<ZColorExt>()));
    ColorGradient blended;
    blended.setBlend(true);
    EXPECT_FALSE(equals(blended, ColorGradient()));
}

} // namespace
} // namespace zsg
