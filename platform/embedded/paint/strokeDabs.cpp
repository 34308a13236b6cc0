#include "paint/strokeDabs.h"

#include "paint/strokeLimits.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

namespace nyx::embedded {

namespace {

constexpr float largestDab = 4096;
constexpr float smallestStep = 0.25f;

/// Not a number counts as 0.
float clamped(float value, float low, float high) {
    return value > low ? std::min(value, high) : low;
}
float fraction(float value) { return clamped(value, 0, 1); }

/// Makes dabs of places along a line. Every dab draws the same three random numbers, so that one
/// jitter does not change what another does.
class DabMaker {
public:
    DabMaker(BrushSettings const& brush, BrushStroke const& stroke)
        : brush_(brush),
          size_(brush.pixels ? brush.sizePixels : brush.sizeWorld),
          unit_(brush.pixels ? 1.0f : stroke.texelsPerUnit),
          random_(stroke.seed) {}

    /// The diameter at a pressure, without jitter.
    [[nodiscard]] float diameter(float pressure) const {
        return clamped(size_.value * unit_ * scale(BrushSettings::SizePressure, pressure), 0,
                       largestDab);
    }
    /// How far the next dab is.
    [[nodiscard]] float step(float pressure) const {
        float const wide = diameter(pressure);
        float const wanted = brush_.adaptiveSpacing ? wide * brush_.spacingPercent / 100.0f
                             : brush_.pixels        ? brush_.spacingPixels
                                                    : brush_.spacingWorld * unit_;
        return clamped(wanted, std::max(smallestStep, wide * 0.01f), 4 * farthest);
    }

    void add(BrushStroke::Point const& at, float direction) {
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
                    (brush_.directional ? direction : 0.0f);
        if (dab.diameter > 0 && dab.flow > 0 && dab.cap > 0) {
            dabs_.push_back(dab);
        }
        ++made_;
    }
    [[nodiscard]] bool full() const { return made_ >= mostDabs; }
    [[nodiscard]] std::vector<Dab> take() { return std::move(dabs_); }

private:
    /// The pressure where it counts, else 1.
    [[nodiscard]] float scale(int bit, float pressure) const {
        return (brush_.penPressure & bit) != 0 ? fraction(pressure) : 1.0f;
    }
    /// From 0 up to, but without, 1; the same numbers with every compiler.
    float random() { return static_cast<float>(random_() >> 8) * 0x1p-24f; }

    BrushSettings const& brush_;
    BrushSettings::Jittered size_;
    float unit_;
    std::mt19937 random_;
    std::vector<Dab> dabs_;
    std::size_t made_ = 0;
};

std::vector<BrushStroke::Point> usable(std::vector<BrushStroke::Point> const& points) {
    std::vector<BrushStroke::Point> result;
    for (BrushStroke::Point p : points) {
        if (!std::isnan(p.x) && !std::isnan(p.y)) {
            p.x = std::clamp(p.x, -farthest, farthest);
            p.y = std::clamp(p.y, -farthest, farthest);
            result.push_back(p);
        }
    }
    return result;
}

} // namespace

std::vector<Dab> strokeDabs(BrushSettings const& brush, BrushStroke const& stroke) {
    std::vector<BrushStroke::Point> const points = usable(stroke.points);
    DabMaker maker(brush, stroke);
    float direction = 0;
    float covered = 0; // of the way to the next dab
    bool first = true;
    for (std::size_t i = 0; i < points.size() && !maker.full(); ++i) {
        BrushStroke::Point const& a = points[i];
        BrushStroke::Point const& b = points[std::min(i + 1, points.size() - 1)];
        float const length = std::hypot(b.x - a.x, b.y - a.y);
        if (length > 0) {
            direction = std::atan2(b.y - a.y, b.x - a.x);
        }
        if (brush.stamp || first) {
            maker.add(a, direction);
        }
        if (brush.stamp) {
            continue;
        }
        first = false;
        if (length == 0) {
            continue;
        }
        // `at` is where the last dab lies on this segment, before its start when negative.
        float at = -covered;
        for (;;) {
            float const t = std::clamp(at / length, 0.0f, 1.0f);
            // A pen that is lifted steps closer, so that the next dab may seem to be due already.
            float const next =
                std::max(0.0f, at + maker.step(a.pressure + t * (b.pressure - a.pressure)));
            if (!(next <= length) || maker.full()) {
                break;
            }
            at = next;
            float const s = at / length;
            maker.add({a.x + s * (b.x - a.x), a.y + s * (b.y - a.y),
                       a.pressure + s * (b.pressure - a.pressure)},
                      direction);
        }
        covered = length - at;
    }
    return maker.take();
}

} // namespace nyx::embedded
