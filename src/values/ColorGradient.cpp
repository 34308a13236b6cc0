#include "zsg/values/ColorGradient.h"

#include <algorithm>
#include <cmath>

namespace zsg {

namespace {

/// operator<, with the NaNs behind all numbers: they would break the order that sorting relies on.
bool before(ColorGradientStop const& a, ColorGradientStop const& b) {
    return a < b || (std::isnan(b.getLocation()) && !std::isnan(a.getLocation()));
}

} // namespace

unsigned int ColorGradient::getNStops() const noexcept {
    return static_cast<unsigned int>(stops_.size());
}

QList<ColorGradientStop> ColorGradient::getStops() const { return stops_; }

ColorGradientStop ColorGradient::colorStop(int index) const { return stops_[index]; }

void ColorGradient::addColorStop(nyxColor_rgba color, float location, float slopeLeft,
                                 float slopeRight) {
    ColorGradientStop const stop(color, location, slopeLeft, slopeRight);
    if (!sorted_) {
        stops_.append(stop);
        sortStops();
        return;
    }
    // Where a stable sort would take it from the end of the list.
    auto const place = std::upper_bound(stops_.cbegin(), stops_.cend(), stop, before);
    stops_.insert(place - stops_.cbegin(), stop);
}

bool ColorGradient::addColorStopAt(unsigned int index, nyxColor_rgba color, float location,
                                   float slopeLeft, float slopeRight, bool sort) {
    if (index >= getNStops()) {
        return false;
    }
    stops_[index] = ColorGradientStop(color, location, slopeLeft, slopeRight);
    sorted_ = false;
    if (sort) {
        sortStops();
    }
    return true;
}

void ColorGradient::clearStops() {
    stops_.clear();
    sorted_ = true;
}

void ColorGradient::reset(ColorGradient const& other) { *this = other; }

void ColorGradient::resizeStops(unsigned int count) {
    if (count > getNStops() && !stops_.isEmpty()) {
        sorted_ = sorted_ && !before(ColorGradientStop(), stops_.constLast());
    }
    stops_.resize(count);
}

bool ColorGradient::operator==(ColorGradient const& other) const {
    return blend_ == other.blend_ &&
           std::equal(stops_.cbegin(), stops_.cend(), other.stops_.cbegin(), other.stops_.cend());
}

void ColorGradient::sortStops() {
    std::stable_sort(stops_.begin(), stops_.end(), before);
    sorted_ = true;
}

} // namespace zsg
