#include "host/pictures/gradientStrip.h"

#include "host/Arguments.h"
#include "host/pictures/Axis.h"
#include "host/pictures/swatch.h"
#include "host/sRGB.h"
#include "zsg/values/ColorGradient.h"

#include <algorithm>
#include <cmath>

namespace app {

namespace {

using Stops = std::vector<shape::LinearGradient::Stop>;

constexpr double margin = 24;
constexpr double width = 560;
constexpr double height = 64;
constexpr double pins = 22;
constexpr double labels = 44;
/// Stops that are nearer than this, as a part of the strip, are not told apart.
constexpr double nearest = 0.25 / width;
constexpr double radius = 6;

nyxColor_rgba middle(nyxColor_rgba const& a, nyxColor_rgba const& b) {
    auto const mean = [](float x, float y) { return x / 2 + y / 2; };
    return {mean(a.r, b.r), mean(a.g, b.g), mean(a.b, b.b), mean(a.a, b.a)};
}

/// Adds what is between two colours until the bytes, which blend along straight lines, are no more
/// than one from the blend of light.
void blend(Stops& stops, double from, nyxColor_rgba const& a, double to, nyxColor_rgba const& b,
           int depth = 8) {
    if (depth == 0 || to - from < nearest) {
        return;
    }
    nyxColor_rgba const half = middle(a, b);
    ColorBytes const wanted = sRGBFromLinear(half);
    ColorBytes const left = sRGBFromLinear(a);
    ColorBytes const right = sRGBFromLinear(b);
    bool exact = true;
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        exact = exact && std::abs(2 * wanted[i] - left[i] - right[i]) <= 2;
    }
    if (exact) {
        return;
    }
    double const at = (from + to) / 2;
    blend(stops, from, a, at, half, depth - 1);
    stops.push_back({at, wanted});
    blend(stops, at, half, to, b, depth - 1);
}

/// A stop of the gradient, somewhere along the strip.
struct Place {
    double at = 0; ///< 0 to 1
    nyxColor_rgba color;
};

/// The stops in order; of those that cannot be told apart the first and the last one.
std::vector<Place> places(QList<zsg::ColorGradientStop> const& given, Axis const& axis) {
    std::vector<Place> all;
    for (zsg::ColorGradientStop const& stop : given) {
        all.push_back({axis.part(static_cast<double>(stop.getLocation())), stop.getColor()});
    }
    // Not every edit leaves them in order.
    std::ranges::stable_sort(all, {}, &Place::at);
    std::vector<Place> kept;
    for (Place const& place : all) {
        if (kept.size() > 1 && place.at - kept[kept.size() - 2].at < nearest) {
            kept.back() = place;
        } else {
            kept.push_back(place);
        }
    }
    return kept;
}

shape::LinearGradient strip(std::vector<Place> const& places, bool blends) {
    shape::LinearGradient strip{{margin, 0}, {margin + width, 0}, {}};
    Place const* before = nullptr;
    for (Place const& place : places) {
        if (before && !blends) {
            strip.stops.push_back({place.at, sRGBFromLinear(before->color)});
        } else if (before) {
            blend(strip.stops, before->at, before->color, place.at, place.color);
        }
        strip.stops.push_back({place.at, sRGBFromLinear(place.color)});
        before = &place;
    }
    return strip;
}

} // namespace

Picture gradientStrip(zsg::ColorGradient const& gradient) {
    QList<zsg::ColorGradientStop> const given = gradient.getStops();
    if (given.isEmpty()) {
        throw CommandError("the gradient has no stops");
    }
    double low = 0;
    double high = 1;
    bool clear = false;
    for (zsg::ColorGradientStop const& stop : given) {
        auto const at = static_cast<double>(stop.getLocation());
        if (!std::isfinite(at)) {
            throw CommandError("a stop of the gradient cannot be drawn");
        }
        low = std::min(low, at);
        high = std::max(high, at);
        clear = clear || !(stop.getColor().a >= 1);
    }
    Axis const axis(low, high, 10, false);
    std::vector<Place> const shown = places(given, axis);

    Picture picture{width + 2 * margin, margin + height + pins + labels, "A gradient", {}};
    if (clear) {
        addChequers(picture, {margin, margin}, width, height);
    }
    picture.add(shape::Rectangle{
        {margin, margin}, width, height, strip(shown, gradient.blend()), {Ink::Frame, 1}, 0});
    constexpr double under = margin + height;
    constexpr double pinTop = under + pins - 2 * radius;
    for (Place const& place : shown) {
        double const x = margin + width * place.at;
        shape::Path pin;
        pin.stroke = {Ink::Text, 1};
        pin.moveTo({x, under});
        pin.lineTo({x, pinTop});
        picture.add(std::move(pin));
        ColorBytes color = sRGBFromLinear(place.color);
        color[3] = 255;
        picture.add(shape::Rectangle{
            {x - radius, pinTop}, 2 * radius, 2 * radius, color, {Ink::Text, 1}, radius});
    }
    axis.labelBelow(picture, margin, width, under + pins + 22);
    return picture;
}

} // namespace app
