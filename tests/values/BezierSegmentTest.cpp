#include "values/BezierSegment.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace zsg {

TEST(BezierSegment, FindsTheParameterOfEveryMonotoneSegment) {
    std::mt19937 random(3);
    std::uniform_real_distribution<float> part(0, 1);
    for (int round = 0; round < 20000; ++round) {
        // Whole numbers at times: vertical and flat places, and the triple root between them.
        auto const handle = [&] { return round % 4 ? part(random) : std::round(part(random)); };
        BezierSegment const s{{0, 0}, {handle(), 0}, {handle(), 0}, {1, 0}};
        double const x = part(random);
        double const t = s.parameterAt(x);
        ASSERT_TRUE(s.parameterAt(-x) == 0 && s.parameterAt(1 + x) == 1);
        double const u = 1 - t;
        ASSERT_NEAR(3 * u * u * t * s.out.x + 3 * u * t * t * s.in.x + t * t * t, x, 1e-11);
        BezierSegment const wide{
            {7, 0}, {7 + 8e9f * s.out.x, 0}, {7 + 8e9f * s.in.x, 0}, {8e9f, 0}};
        ASSERT_NEAR(split(wide, wide.parameterAt(8e9 * x)).pos.x, 8e9 * x, 8e9 * 1e-6) << round;
    }
}

TEST(BezierSegment, AnswersForDegenerateSegments) {
    float const places[] = {NAN, -INFINITY, -3e38f, -1, 0, 1e-45f, 1, 3e38f, INFINITY};
    for (unsigned i = 0; i < 9 * 9 * 9 * 9 * 9; ++i) {
        auto const place = [&](unsigned divisor) { return places[i / divisor % 9]; };
        BezierSegment const segment{{place(1), 0}, {place(9), 0}, {place(81), 0}, {place(729), 0}};
        double const t = segment.parameterAt(double{place(6561)});
        ASSERT_TRUE(t >= 0 && t <= 1) << i;
    }
}

} // namespace zsg
