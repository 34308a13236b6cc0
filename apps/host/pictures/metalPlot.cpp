#include "host/pictures/metalPlot.h"

#include "host/Arguments.h"
#include "host/pictures/Plot.h"

#include <algorithm>
#include <cmath>

namespace app {

Picture metalPlot(std::vector<MetalSample> const& samples) {
    double low = 0;
    double high = 1;
    std::vector<double> places;
    for (MetalSample const& s : samples) {
        if (!std::isfinite(s.wavelength)) {
            continue;
        }
        places.push_back(s.wavelength);
        for (double const value : {s.n, s.k}) {
            if (std::isfinite(value)) {
                low = std::min(low, value);
                high = std::max(high, value);
            }
        }
    }
    if (places.empty() || places.front() == places.back()) {
        throw CommandError("there is nothing to draw");
    }
    Plot plot("n, k and reflectance",
              {Axis(places.front(), places.back(), 10, false), Axis(low, high, 8, true),
               Axis(0, 1, 6, true), "wavelength in nm", "n, k", "R, reflected part of the light"});
    using Side = Plot::Side;
    auto const line = [&](Ink ink, char const* name, Side side, auto value) {
        shape::Path path;
        bool drawing = false;
        for (MetalSample const& s : samples) {
            double const v = value(s);
            if (!std::isfinite(s.wavelength) || !std::isfinite(v)) {
                drawing = false;
                continue;
            }
            shape::Point const p = plot.at(s.wavelength, v, side);
            drawing ? path.lineTo(p) : path.moveTo(p);
            drawing = true;
        }
        plot.line(std::move(path), ink, 2);
        plot.explainLine(ink, name);
    };
    line(Ink::First, "n", Side::Left, [](MetalSample const& s) { return s.n; });
    line(Ink::Second, "k", Side::Left, [](MetalSample const& s) { return s.k; });
    line(Ink::Third, "R (axis at the right)", Side::Right, [](MetalSample const& s) {
        double const part = s.reflectance();
        return part >= 0 && part <= 1 ? part : std::nan("");
    });
    return std::move(plot).take();
}

} // namespace app
