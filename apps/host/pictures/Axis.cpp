#include "host/pictures/Axis.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace app {

namespace {

double roundStep(double atLeast) {
    double const power = std::pow(10, std::floor(std::log10(atLeast)));
    // A power that is a hair too small must not make 1 into 2.
    constexpr double hair = 1 - 1e-9;
    for (double const part : {1.0, 2.0, 5.0}) {
        if (part * power >= atLeast * hair) {
            return part * power;
        }
    }
    return 10 * power;
}

} // namespace

Axis::Axis(double low, double high, int mostSteps, bool widened) : low_(low), high_(high) {
    // Steps that a float could not tell apart would all have one label.
    double const least = std::max(std::abs(low), std::abs(high)) * 1e-5;
    if (!(high - low > least)) {
        double const room = std::max(least, low == 0 && high == 0 ? 1 : least);
        low_ = low - room;
        high_ = high + room;
    }
    // One step less than there may be, since widening adds up to one.
    step_ = roundStep((high_ - low_) / (widened ? mostSteps - 1 : mostSteps));
    constexpr double hair = 1e-9;
    double const first = widened ? std::floor(low_ / step_ + hair) : std::ceil(low_ / step_ - hair);
    double const last =
        widened ? std::ceil(high_ / step_ - hair) : std::floor(high_ / step_ + hair);
    for (double i = first; i <= last; ++i) {
        ticks_.push_back(i == 0 ? 0 : i * step_); // 0 without a sign
    }
    if (widened) {
        low_ = ticks_.front();
        high_ = ticks_.back();
    }
}

std::string Axis::label(double tick) const {
    constexpr double largest = 1e6;
    constexpr double smallest = 1e-4;
    char text[32];
    double const most = std::max(std::abs(low_), std::abs(high_));
    std::to_chars_result result{};
    if (most < largest && step_ >= smallest) {
        int const decimals = std::max(0, static_cast<int>(std::ceil(-std::log10(step_) - 1e-9)));
        result = std::to_chars(text, text + sizeof text, tick, std::chars_format::fixed, decimals);
    } else {
        result = std::to_chars(text, text + sizeof text, tick, std::chars_format::general, 7);
    }
    return {text, result.ptr};
}

void Axis::labelBelow(Picture& picture, double left, double length, double baseline) const {
    constexpr double gap = 6;
    double taken = 0;
    for (double const tick : ticks_) {
        shape::Text text{{0, baseline}, label(tick)};
        text.ink = Ink::Faint;
        text.anchor = shape::Text::Anchor::Middle;
        double const half = shape::textWidth(text.text, text.size) / 2 + gap / 2;
        double const middle = std::clamp(left + length * part(tick), half, picture.width - half);
        if (middle - half < taken) {
            continue;
        }
        text.baseline.x = middle;
        taken = middle + half;
        picture.add(std::move(text));
    }
}

} // namespace app
