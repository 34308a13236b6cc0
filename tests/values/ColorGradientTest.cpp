#include "zsg/values/ColorGradient.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

namespace zsg {

TEST(ColorGradient, ComparesAndResets) {
    ColorGradient const empty;
    ColorGradient two;
    two.resizeStops(2);
    EXPECT_EQ(two.getStops(), QList<ColorGradientStop>(2, {{0, 0, 0, 1}, 0, 0, 0}));
    EXPECT_TRUE(two.colorStop(1) == ColorGradientStop() && !(two == empty || two.blend()));
    for (std::size_t place = 0; place < 7; ++place) {
        ColorGradient other = two;
        float n[] = {0, 0, 0, 1, 0, 0, 0};
        n[place] = NAN;
        EXPECT_TRUE(other.addColorStopAt(1, {n[0], n[1], n[2], n[3]}, n[4], n[5], n[6], true));
        EXPECT_FALSE(two == other || other == other) << place;
    }
    ColorGradient blending = two;
    blending.setBlend(true);
    EXPECT_FALSE(two == blending);
    blending.reset(blending);
    EXPECT_EQ(blending.getNStops(), 2u);
    blending.clearStops();
    EXPECT_TRUE(blending.blend());
    blending.reset(two);
    EXPECT_EQ(blending, two);
}

// The quick insertion must never show, whatever was done to the order before.
TEST(ColorGradient, IsAlwaysWhatAStableSortGives) {
    std::mt19937 random(7);
    std::vector<ColorGradientStop> model;
    ColorGradient gradient;
    for (int i = 0; i < 4000; ++i) {
        float const location = static_cast<float>(random() % 9) / 4 - 1;
        ColorGradientStop stop;
        stop.setColor({static_cast<float>(i), 0, 0, 1});
        stop.setLocation(location);
        stop.setSlopeLeft(2);
        stop.setSlopeRight(3);
        auto const index = static_cast<unsigned>(random() % 30);
        auto const what = random() % 16;
        if (what < 12) {
            gradient.addColorStop(stop.getColor(), location, 2, 3);
            model.push_back(stop);
        } else if (what < 15) {
            bool const known = index < model.size();
            ASSERT_EQ(gradient.addColorStopAt(index, stop.getColor(), location, 2, 3, what == 12),
                      known);
            if (known) {
                model[index] = stop;
            }
        } else {
            gradient.resizeStops(index);
            model.resize(index);
        }
        if (what < 12 || (what == 12 && index < model.size())) {
            std::ranges::stable_sort(model, {}, &ColorGradientStop::getLocation);
        }
        ASSERT_TRUE(std::ranges::equal(ColorGradient(gradient).getStops(), model)) << i;
    }
}

TEST(ColorGradient, NotANumberLeavesTheOtherStopsInOrder) {
    ColorGradient gradient;
    for (float const location : {3.0f, NAN, 1.0f, NAN, 2.0f, 0.0f, -INFINITY}) {
        gradient.addColorStop({}, location, 0, 0);
    }
    QList<ColorGradientStop> stops = gradient.getStops();
    stops.removeIf([](auto const& stop) { return std::isnan(stop.getLocation()); });
    EXPECT_TRUE(stops.size() == 5 && std::is_sorted(stops.cbegin(), stops.cend()));
}

} // namespace zsg
