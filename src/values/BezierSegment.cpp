#include "values/BezierSegment.h"

#include <cmath>

namespace zsg {

namespace {

constexpr double tolerance = 1e-12;
constexpr int mostSteps = 64; // bisection alone is through after 53

struct Point {
    double x;
    double y;
};

Point between(Point const& a, Point const& b, double t) {
    return {a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t};
}

Point widen(nyxVector2f const& point) { return {point.x, point.y}; }

nyxVector2f narrow(Point const& point) {
    return {static_cast<float>(point.x), static_cast<float>(point.y)};
}

} // namespace

double BezierSegment::parameterAt(double x) const noexcept {
    double const origin = start.x;
    double const scale = 1 / (end.x - origin);
    double const wanted = (x - origin) * scale;
    if (!(wanted > 0)) {
        return 0;
    }
    if (wanted >= 1) {
        return 1;
    }
    // ((a t + b) t + c) t with the segment's width as the unit.
    double const first = (out.x - origin) * scale;
    double const second = (in.x - origin) * scale;
    double const a = 1 + 3 * (first - second);
    double const b = 3 * (second - 2 * first);
    double const c = 3 * first;

    // Halley's steps inside a bracket; where they leave it or do not shrink fast, it is halved.
    double low = 0;
    double high = 1;
    double t = wanted;
    double lastStep = 1;
    for (int i = 0; i < mostSteps; ++i) {
        double const error = ((a * t + b) * t + c) * t - wanted;
        if (std::abs(error) <= tolerance) {
            break;
        }
        (error < 0 ? low : high) = t;
        double const slope = (3 * a * t + 2 * b) * t + c;
        double const bend = 3 * a * t + b; // half the second derivative
        double const step = error * slope / (slope * slope - error * bend);
        double const next = t - step;
        if (next > low && next < high && std::abs(step) <= 0.5 * lastStep) {
            lastStep = std::abs(step);
            t = next;
        } else {
            lastStep = 0.5 * (high - low);
            t = low + lastStep;
        }
    }
    return t;
}

BezierSplit split(BezierSegment const& segment, double t) noexcept {
    Point const start = widen(segment.start);
    Point const out = widen(segment.out);
    Point const in = widen(segment.in);
    Point const end = widen(segment.end);
    Point const startOut = between(start, out, t);
    Point const middle = between(out, in, t);
    Point const endIn = between(in, end, t);
    Point const newIn = between(startOut, middle, t);
    Point const newOut = between(middle, endIn, t);
    return {narrow(startOut), narrow(newIn), narrow(between(newIn, newOut, t)), narrow(newOut),
            narrow(endIn)};
}

} // namespace zsg
