#include "paint/blendTile.h"

#include <algorithm>
#include <cmath>

namespace nyx::embedded {

namespace {

/// Rounds what is not negative; the library's own rounding does not fit into vector registers.
constexpr float half = 0.5f;

using Mode = nyx::ColorBlendMode;
using Word = std::uint16_t; // eight of them fit a vector register; sums may wrap on the way

/// x / 255 to the nearest, for x up to 255 * 255. Written as the upper half of a product, which
/// vector registers know.
constexpr Word divideBy255(Word x) {
    auto const t = static_cast<Word>(x + 128);
    return static_cast<Word>((std::uint32_t{t} * 257u) >> 16);
}

constexpr Word times(Word x, Word y) { return static_cast<Word>(x * y); }
constexpr Word minus(Word x, Word y) { return static_cast<Word>(x - y); }
constexpr Word plus(Word x, Word y) { return static_cast<Word>(x + y); }

/// 255 * 255 a b B(d / b, s / a), for the modes that whole numbers can tell exactly.
template <Mode mode>
constexpr Word blended(Word s, Word d, Word a, Word b) {
    Word const sb = times(s, b);
    Word const da = times(d, a);
    switch (mode) {
    case Mode::Multiply:
        return times(s, d);
    case Mode::Screen:
        return minus(plus(sb, da), times(s, d));
    case Mode::Add: {
        Word const room = minus(times(a, b), sb);
        return plus(sb, da < room ? da : room);
    }
    case Mode::Subtract:
        return da > sb ? minus(da, sb) : Word{0};
    case Mode::Darken:
        return sb < da ? sb : da;
    case Mode::Lighten:
        return sb < da ? da : sb;
    case Mode::Overlay:
    case Mode::HardLight: {
        Word const low = plus(times(s, d), times(s, d));
        Word const inverse = times(minus(a, s), minus(b, d));
        Word const high = minus(times(a, b), plus(inverse, inverse));
        bool const isLow = mode == Mode::Overlay ? plus(d, d) <= b : plus(s, s) <= a;
        return isLow ? low : high;
    }
    case Mode::Difference:
        return sb < da ? minus(da, sb) : minus(sb, da);
    case Mode::Exclusion:
        return minus(plus(sb, da), plus(times(s, d), times(s, d)));
    default:
        return sb;
    }
}

/// The same for the modes that divide, in numbers with a fraction. Both sides of a choice are
/// computed, so that the loops need no branch; a divisor of 0 is replaced where its side is not
/// taken.
template <Mode mode>
float blended(float s, float d, float a, float b) {
    float const ab = a * b;
    switch (mode) {
    case Mode::ColorDodge: {
        float const dodged = std::min(ab, d * a * a / std::max(a - s, 1.0f));
        float const bright = s >= a ? ab : dodged;
        return d <= 0.0f ? 0.0f : bright;
    }
    case Mode::ColorBurn: {
        float const burnt = ab - std::min(ab, (b - d) * a * a / std::max(s, 1.0f));
        float const dark = s <= 0.0f ? 0.0f : burnt;
        return d >= b ? ab : dark;
    }
    default: { // SoftLight
        float const c = d / std::max(b, 1.0f);
        float const darker = (a - s - s) * d * (1.0f - c);
        float const curve = ((16.0f * c - 12.0f) * c + 4.0f) * c;
        float const root = std::sqrt(c);
        float const lighter = (s + s - a) * (b * (c <= 0.25f ? curve : root) - d);
        return d * a + (s + s <= a ? -darker : lighter);
    }
    }
}

template <Mode mode>
void blendPlane(std::uint8_t* __restrict backdrop, std::uint8_t const* __restrict source,
                std::uint8_t const* __restrict backdropAlpha,
                std::uint8_t const* __restrict sourceAlpha) {
    for (int i = 0; i < PixelTile::texels; ++i) {
        Word const s = source[i];
        Word const d = backdrop[i];
        Word const a = sourceAlpha[i];
        Word const b = backdropAlpha[i];
        Word sum = 0;
        if constexpr (mode == Mode::ColorDodge || mode == Mode::ColorBurn ||
                      mode == Mode::SoftLight) {
            float const both = blended<mode>(static_cast<float>(s), static_cast<float>(d),
                                             static_cast<float>(a), static_cast<float>(b));
            sum = plus(plus(times(s, minus(255, b)), times(d, minus(255, a))),
                       static_cast<Word>(static_cast<int>(both + half)));
        } else {
            sum = plus(plus(times(s, minus(255, b)), times(d, minus(255, a))),
                       blended<mode>(s, d, a, b));
        }
        backdrop[i] = static_cast<std::uint8_t>(divideBy255(sum));
    }
}

/// s + d (1 - a), one number of the result of Normal, and its alpha in every mode.
constexpr std::uint8_t over(std::uint8_t s, std::uint8_t d, Word transparency) {
    return static_cast<std::uint8_t>(
        s + static_cast<std::uint8_t>(divideBy255(times(d, transparency))));
}

void blendAlpha(std::uint8_t* __restrict backdrop, std::uint8_t const* __restrict source) {
    for (int i = 0; i < PixelTile::texels; ++i) {
        auto const transparency = static_cast<Word>(static_cast<std::uint8_t>(~source[i]));
        backdrop[i] = over(source[i], backdrop[i], transparency);
    }
}

/// All planes in one pass: source-over is no more than memory can deliver.
void blendNormal(PixelTile& backdrop, PixelTile const& source) {
    std::uint8_t* __restrict const red = backdrop.planes[0];
    std::uint8_t* __restrict const green = backdrop.planes[1];
    std::uint8_t* __restrict const blue = backdrop.planes[2];
    std::uint8_t* __restrict const alpha = backdrop.planes[PixelTile::alpha];
    for (int i = 0; i < PixelTile::texels; ++i) {
        std::uint8_t const a = source.planes[PixelTile::alpha][i];
        auto const transparency = static_cast<Word>(static_cast<std::uint8_t>(~a));
        red[i] = over(source.planes[0][i], red[i], transparency);
        green[i] = over(source.planes[1][i], green[i], transparency);
        blue[i] = over(source.planes[2][i], blue[i], transparency);
        alpha[i] = over(a, alpha[i], transparency);
    }
}

template <Mode mode>
void blend(PixelTile& backdrop, PixelTile const& source) {
    for (int plane = 0; plane < PixelTile::alpha; ++plane) {
        blendPlane<mode>(backdrop.planes[plane], source.planes[plane],
                         backdrop.planes[PixelTile::alpha], source.planes[PixelTile::alpha]);
    }
    blendAlpha(backdrop.planes[PixelTile::alpha], source.planes[PixelTile::alpha]);
}

} // namespace

void blendTile(PixelTile& backdrop, PixelTile const& source, nyx::ColorBlendMode mode) {
    switch (mode) {
    case Mode::Multiply:
        return blend<Mode::Multiply>(backdrop, source);
    case Mode::Screen:
        return blend<Mode::Screen>(backdrop, source);
    case Mode::Overlay:
        return blend<Mode::Overlay>(backdrop, source);
    case Mode::Add:
        return blend<Mode::Add>(backdrop, source);
    case Mode::Subtract:
        return blend<Mode::Subtract>(backdrop, source);
    case Mode::Darken:
        return blend<Mode::Darken>(backdrop, source);
    case Mode::Lighten:
        return blend<Mode::Lighten>(backdrop, source);
    case Mode::ColorDodge:
        return blend<Mode::ColorDodge>(backdrop, source);
    case Mode::ColorBurn:
        return blend<Mode::ColorBurn>(backdrop, source);
    case Mode::HardLight:
        return blend<Mode::HardLight>(backdrop, source);
    case Mode::SoftLight:
        return blend<Mode::SoftLight>(backdrop, source);
    case Mode::Difference:
        return blend<Mode::Difference>(backdrop, source);
    case Mode::Exclusion:
        return blend<Mode::Exclusion>(backdrop, source);
    default:
        return blendNormal(backdrop, source);
    }
}

} // namespace nyx::embedded
