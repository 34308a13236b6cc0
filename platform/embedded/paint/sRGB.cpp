#include "nyxembedded/sRGB.h"

#include "paint/toByte.h"

#include <algorithm>
#include <cmath>

namespace nyx::embedded {

namespace {

// Through a comparison that a NaN fails.
double unit(float part) { return part > 0 ? std::min(static_cast<double>(part), 1.0) : 0.0; }

float decoded(double v) {
    return static_cast<float>(v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4));
}

} // namespace

float encodedFromLinear(float linear) {
    double const v = unit(linear);
    return static_cast<float>(v <= 0.0031308 ? 12.92 * v : 1.055 * std::pow(v, 1 / 2.4) - 0.055);
}

float linearFromEncoded(float encoded) { return decoded(unit(encoded)); }

std::uint8_t sRGBFromLinear(float linear) { return toByte(encodedFromLinear(linear)); }

float linearFromSRGB(std::uint8_t byte) { return decoded(byte / 255.0); }

} // namespace nyx::embedded
