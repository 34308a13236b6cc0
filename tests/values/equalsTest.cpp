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
    EXPECT_FALSE(equals(nyxVector{1, 2, 3}, nyxVector{1, 2, 4}));
    EXPECT_FALSE(equals(nyxVectorf{nanf, 2, 3}, nyxVectorf{nanf, 2, 3}));
    EXPECT_FALSE(equals(1.0f, std::nextafter(1.0f, 2.0f)));
    EXPECT_FALSE(equals(nanf, nanf));
    EXPECT_FALSE(equals(nan, nan));
    int one = 0;
    auto* const shader = reinterpret_cast<nyxShader*>(&one);
    EXPECT_FALSE(equals<nyxShader*>(shader, nullptr));
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

} // namespace
} // namespace zsg
