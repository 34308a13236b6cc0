#include "require.h"
#include "zsg/values/ColorGradient.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

using zsg::ColorGradient;
using zsg::ColorGradientStop;

namespace {

/// A gradient beside the rule that it has to follow: append, then sort all stops stably.
struct Pair {
    ColorGradient gradient;
    std::vector<ColorGradientStop> model;

    void sort() { std::stable_sort(model.begin(), model.end()); }
    void check() const {
        auto const stops = gradient.getStops();
        require(std::equal(stops.begin(), stops.end(), model.begin(), model.end()));
        require(gradient == gradient && gradient.getNStops() == model.size());
    }
};

/// Locations that often meet; no NaN, whose place is not promised.
float location(FuzzedDataProvider& input) {
    return static_cast<float>(input.ConsumeIntegral<std::int8_t>()) / 8;
}

} // namespace

/// Edits of two gradients that are copied to each other, each against its model.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    std::array<Pair, 2> pairs;
    float serial = 0; // tells stops of one location apart
    while (input.remaining_bytes() > 0) {
        auto const which = input.ConsumeIntegralInRange<std::size_t>(0, 1);
        auto& [gradient, model] = pairs[which];
        float const at = location(input);
        ColorGradientStop const stop({++serial, 0, 0, 1}, at, 0, 0);
        switch (input.ConsumeIntegralInRange(0, 6)) {
        case 0:
        case 1:
            gradient.addColorStop(stop.getColor(), at, 0, 0);
            model.push_back(stop);
            pairs[which].sort();
            break;
        case 2: {
            auto const index = input.ConsumeIntegral<std::uint8_t>();
            bool const sorts = input.ConsumeBool();
            bool const exists = index < model.size();
            require(gradient.addColorStopAt(index, stop.getColor(), at, 0, 0, sorts) == exists);
            if (exists) {
                model[index] = stop;
            }
            if (exists && sorts) {
                pairs[which].sort();
            }
            break;
        }
        case 3: {
            auto const count = input.ConsumeIntegral<std::uint8_t>();
            gradient.resizeStops(count);
            model.resize(count);
            break;
        }
        case 4:
            gradient.clearStops();
            model.clear();
            break;
        case 5:
            gradient.setBlend(input.ConsumeBool());
            break;
        default:
            pairs[which] = pairs[1 - which];
        }
        pairs[0].check();
        pairs[1].check();
    }
    return 0;
}
