#include "host/pictures/curvePlot.h"

#include "host/Arguments.h"
#include "host/pictures/Plot.h"
#include "zsg/values/AnimationCurve.h"

#include <algorithm>
#include <cmath>

namespace app {

namespace {

Plot::Axes axes(zsg::AnimationCurve const& curve) {
    nyxVector2f low = curve.keyAt(0).pos;
    nyxVector2f high = low;
    for (int i = 0; i < curve.keyCount(); ++i) {
        nyx::AnimationKey const& key = curve.keyAt(i);
        for (nyxVector2f const& p : {key.pos, key.in, key.out}) {
            if (!std::isfinite(p.x) || !std::isfinite(p.y)) {
                throw CommandError("a point of the curve cannot be drawn");
            }
            low = {std::min(low.x, p.x), std::min(low.y, p.y)};
            high = {std::max(high.x, p.x), std::max(high.y, p.y)};
        }
    }
    auto const axis = [](float from, float to) {
        return Axis(static_cast<double>(from), static_cast<double>(to), 8, true);
    };
    return {axis(low.x, high.x), axis(low.y, high.y), {}, "x", "y", {}};
}

} // namespace

Picture curvePlot(zsg::AnimationCurve const& curve) {
    int const count = curve.keyCount();
    if (count == 0) {
        throw CommandError("the curve has no keys");
    }
    Plot plot("A curve", axes(curve));
    auto const at = [&plot](float x, float y) {
        return plot.at(static_cast<double>(x), static_cast<double>(y));
    };
    auto const place = [&at](nyxVector2f const& p) { return at(p.x, p.y); };
    plot.explainLine(Ink::First, "curve");
    plot.explainDot(Ink::Text, "key");
    plot.explainDot(Ink::Second, "incoming handle");
    plot.explainDot(Ink::Third, "outgoing handle");

    shape::Path arms;
    shape::Path line;
    line.moveTo(place(curve.keyAt(0).pos));
    for (int i = 0; i < count; ++i) {
        nyx::AnimationKey const& a = curve.keyAt(i);
        arms.moveTo(place(a.in));
        arms.lineTo(place(a.pos));
        arms.lineTo(place(a.out));
        if (i + 1 == count) {
            break;
        }
        nyx::AnimationKey const& b = curve.keyAt(i + 1);
        switch (a.type) {
        case nyx::KeyType::L:
            break;
        case nyx::KeyType::s:
            line.lineTo(at(b.pos.x, a.pos.y));
            break;
        case nyx::KeyType::S:
            line.lineTo(at(a.pos.x, b.pos.y));
            break;
        default:
            line.cubicTo(place(a.out), place(b.in), place(b.pos));
            continue;
        }
        line.lineTo(place(b.pos));
    }
    plot.line(std::move(arms), Ink::Frame, 1);
    plot.line(std::move(line), Ink::First, 2);
    for (int i = 0; i < count; ++i) {
        nyx::AnimationKey const& key = curve.keyAt(i);
        // A handle on its key would only hide it.
        if (!(key.in == key.pos)) {
            plot.dot(place(key.in), 3, Ink::Second);
        }
        if (!(key.out == key.pos)) {
            plot.dot(place(key.out), 3, Ink::Third);
        }
        plot.dot(place(key.pos), 4, Ink::Text);
    }
    return std::move(plot).take();
}

} // namespace app
