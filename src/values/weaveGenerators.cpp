#include "values/WeavePatternData.h"
#include "zsg/values/WeavePattern.h"

namespace zsg {

namespace {

/// A square pattern of one yarn. A side that no pattern can have gives a single crossing and
/// becomes 0, so that the caller draws nothing.
WeavePattern square(std::int64_t& side, WeavePattern::YarnType type) {
    if (!WeaveGrid::isValidSize(side, side)) {
        side = 0;
    }
    int const size = side == 0 ? 1 : static_cast<int>(side);
    WeavePattern pattern(size, size, nullptr);
    pattern.clear(type);
    return pattern;
}

void setWidths(WeavePattern& pattern, float warp, float weft) {
    pattern.setWidth(WeavePattern::Warp, warp);
    pattern.setWidth(WeavePattern::Weft, weft);
}

void setTensions(WeavePattern& pattern, float warp, float weft) {
    pattern.setTension(WeavePattern::Warp, warp);
    pattern.setTension(WeavePattern::Weft, weft);
}

} // namespace

WeavePattern WeavePattern::makePlain() {
    static constexpr int cells[] = {Warp, Weft, Weft, Warp};
    WeavePattern pattern(2, 2, cells);
    setWidths(pattern, 0.7f, 0.7f);
    setTensions(pattern, 0.5f, 0.5f);
    return pattern;
}

WeavePattern WeavePattern::makeTwill(int n, int k) {
    std::int64_t side = n;
    WeavePattern pattern = square(side, Warp);
    int const size = static_cast<int>(side);
    int const band = std::min(k, size); // a wider one only goes round again
    for (int y = 0; y < size; ++y) {
        for (int i = 0; i < band; ++i) {
            pattern.set((y - size) + i, y, Weft);
        }
    }
    setWidths(pattern, 0.7f, 0.7f);
    setTensions(pattern, 0.5f, 0.5f);
    return pattern;
}

WeavePattern WeavePattern::makeSatin(int n, int step) {
    std::int64_t side = n;
    WeavePattern pattern = square(side, Weft);
    int const size = static_cast<int>(side);
    std::int64_t x = 0;
    for (int y = 0; y < size; ++y) {
        pattern.set(static_cast<int>(x), y, Warp);
        x = (x + step) % side; // may be negative: set() wraps
    }
    setWidths(pattern, 0.35f, 1.0f);
    setTensions(pattern, 2.0f, 0.5f);
    pattern.setKind(Warp, Round);
    pattern.setKind(Weft, Ribbon);
    return pattern;
}

WeavePattern WeavePattern::makeBasket(int n) {
    std::int64_t side = std::int64_t{n} * 2;
    WeavePattern pattern = square(side, Warp);
    int const half = static_cast<int>(side / 2);
    for (int y = 0; y < half; ++y) {
        for (int x = 0; x < half; ++x) {
            pattern.set(x, half + y, Weft);
            pattern.set(half + x, y, Weft);
        }
    }
    setWidths(pattern, 0.7f, 0.7f);
    setTensions(pattern, 0.5f, 0.5f);
    return pattern;
}

WeavePattern WeavePattern::makeHerringbone() {
    static constexpr int half[] = {
        1, 1, 0, 0, 1, 1, 0, 0, 1, 1, 0, 0, //
        0, 1, 1, 0, 0, 1, 0, 1, 1, 0, 0, 1, //
        0, 0, 1, 1, 0, 0, 1, 1, 0, 0, 1, 1, //
        1, 0, 0, 1, 1, 0, 1, 0, 0, 1, 1, 0,
    };
    WeavePattern pattern(12, 4, half);
    pattern.setSize(12, 8); // the lower half repeats the upper one
    setWidths(pattern, 0.803f, 0.78f);
    setTensions(pattern, 1.0f, 1.0f);
    return pattern;
}

} // namespace zsg
