#pragma once

#include <optional>

/// The pieces of a parameter's hint, a zero-terminated text such as "-range,0,100-\n-kelvin-". A
/// piece may stand anywhere; only the first of a kind is looked at. Numbers are written with a
/// point whatever the locale. A null hint has no pieces.
namespace zsg {

struct HintRange {
    float low;
    float high;
};

/// From "-limits,low,high-"; nothing when it is absent or malformed.
[[nodiscard]] std::optional<HintRange> hintLimits(char const* hint);

/// From "-spin,low,high,step-" or, when there is no "-spin" at all, from "-range,low,high-". A
/// malformed spin piece hides a good range.
[[nodiscard]] std::optional<HintRange> hintSliderRange(char const* hint);

/// Whether there is "-kelvin-".
[[nodiscard]] bool hintKelvin(char const* hint);

} // namespace zsg
