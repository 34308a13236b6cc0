#include "workbench/colors/ColorState.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace workbench;

TEST(ColorStateTest, KeepsWhatTheValueDoesNotSay) {
    ColorState state;
    state.setValue({0.25F, 0.125F, 0.5F, 1});
    float const hue = state.hue();
    float const saturation = state.saturation();
    state.setHsv(hue, saturation, 0);
    EXPECT_EQ(state.hue(), hue) << "black has a hue for as long as one edits";
    state.setHsv(state.hue(), state.saturation(), 0.7F);
    EXPECT_NEAR(double(state.saturation()), double(saturation), 1e-6);
    state.setValue({0.2F, 0.2F, 0.2F, 1});
    EXPECT_EQ(state.hue(), hue);
    // Round trips over the circle.
    for (int i = 0; i < 60; ++i) {
        ColorState back;
        state.setHsv(float(i) / 60, 0.8F, 0.6F);
        back.setValue(state.value());
        EXPECT_NEAR(std::remainder(double(back.hue()) - i / 60.0, 1), 0, 1e-4);
        EXPECT_NEAR(double(back.brightness()), 0.6, 1e-4);
    }
}
