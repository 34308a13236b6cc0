#include "paint/strokeDabs.h"

#include "paint/strokeLimits.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace nyx::embedded {

namespace {

constexpr float largestDab = 4096;
constexpr float smallestStep = 0.25f;

/// Not a number counts as 0.
float clamped(float value, float low, float high) {
    return value > low ? std::min(value, high) : low;
}
float fraction(float value) { return clamped(value, 0, 1); }

} // namespace

StrokeDabs::StrokeDabs(BrushSettings const& brush, float texelsPerUnit, std::uint32_t seed)
    : brush_(brush),
      size_(brush.pixels ? brush.sizePixels : brush.sizeWorld),
      unit_(brush.pixels ? 1.0f : texelsPerUnit),
      random_(seed) {}

bool StrokeDabs::isFull() const { return made_ >= mostDabs; }

/// The pressure where it counts, else 1.
float StrokeDabs::scale(int bit, float pressure) const {
    return (brush_.penPressure & bit) != 0 ? fraction(pressure) : 1.0f;
}

/// The diameter at a pressure, without jitter.
float StrokeDabs::diameter(float pressure) const {
    return clamped(size_.value * unit_ * scale(BrushSettings::SizePressure, pressure), 0,
                   largestDab);
}

/// How far the next dab is.
float StrokeDabs::step(float pressure) const {
    float const wide = diameter(pressure);
    float const wanted = brush_.adaptiveSpacing ? wide * brush_.spacingPercent / 100.0f
                         : brush_.pixels        ? brush_.spacingPixels
                                                : brush_.spacingWorld * unit_;
    return clamped(wanted, std::max(smallestStep, wide * 0.01f), 4 * farthest);
}

/// From 0 up to, but without, 1; the same numbers with every compiler.
float StrokeDabs::random() { return static_cast<float>(random_() >> 8) * 0x1p-24f; }

/// Every dab draws the same three random numbers, so that one jitter does not change what another
/// does.
void StrokeDabs::print(BrushStroke::Point const& at) {
    float const turn = random();
    float const shrink = random();
    float const weaken = random();
    Dab dab;
    dab.x = at.x;
    dab.y = at.y;
    dab.diameter = diameter(at.pressure) * (1 - fraction(size_.jitter) * shrink);
    dab.flow = fraction(brush_.flow.value) * (1 - fraction(brush_.flow.jitter) * weaken) *
               scale(BrushSettings::FlowPressure, at.pressure);
    dab.cap = fraction(brush_.opacity) * fraction(brush_.alpha) *
              scale(BrushSettings::OpacityPressure, at.pressure);
    float const degrees =
        brush_.rotation + 180.0f * fraction(brush_.rotationJitter) * (2 * turn - 1);
    dab.angle = (std::isfinite(degrees) ? std::remainder(degrees, 360.0f) : 0.0f) *
                    std::numbers::pi_v<float> / 180.0f +
                (brush_.directional ? direction_ : 0.0f);
    if (dab.diameter > 0 && dab.flow > 0 && dab.cap > 0) {
        dabs_.push_back(dab);
    }
    ++made_;
}

void StrokeDabs::printLast() {
    if (std::exchange(isLastDue_, false)) {
        print(*last_);
    }
}

void StrokeDabs::add(BrushStroke::Point point) {
    if (std::isnan(point.x) || std::isnan(point.y) || isFull()) {
        return;
    }
    point.x = std::clamp(point.x, -farthest, farthest);
    point.y = std::clamp(point.y, -farthest, farthest);
    if (last_) {
        goTo(point);
    }
    isLastDue_ = !isFull() && (brush_.stamp || !last_);
    last_ = point;
    if (!brush_.directional) { // else the next point tells which way it looks
        printLast();
    }
}

void StrokeDabs::end() { printLast(); }

void StrokeDabs::goTo(BrushStroke::Point const& b) {
    BrushStroke::Point const a = *last_;
    float const length = std::hypot(b.x - a.x, b.y - a.y);
    if (length > 0) {
        direction_ = std::atan2(b.y - a.y, b.x - a.x);
    }
    printLast();
    if (brush_.stamp || length == 0) {
        return;
    }
    // `at` is where the last dab lies on this segment, before its start when negative.
    float at = -covered_;
    for (;;) {
        float const t = std::clamp(at / length, 0.0f, 1.0f);
        // A pen that is lifted steps closer, so that the next dab may seem to be due already.
        float const next = std::max(0.0f, at + step(a.pressure + t * (b.pressure - a.pressure)));
        if (!(next <= length) || isFull()) {
            break;
        }
        at = next;
        float const s = at / length;
        print({a.x + s * (b.x - a.x), a.y + s * (b.y - a.y),
               a.pressure + s * (b.pressure - a.pressure)});
    }
    covered_ = length - at;
}

std::vector<Dab> StrokeDabs::take() { return std::exchange(dabs_, {}); }

std::vector<Dab> strokeDabs(BrushSettings const& brush, BrushStroke const& stroke) {
    StrokeDabs dabs(brush, stroke.texelsPerUnit, stroke.seed);
    for (BrushStroke::Point const& point : stroke.points) {
        dabs.add(point);
    }
    dabs.end();
    return dabs.take();
}

} // namespace nyx::embedded
