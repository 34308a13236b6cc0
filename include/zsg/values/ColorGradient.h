#pragma once

#include "zsg/Export.h"
#include "zsg/values/ColorGradientStop.h"

#include <QList>

namespace zsg {

/// Colour stops in ascending order of location, stops of one location in the order in which they
/// came, and a flag whether colours blend between them. A value; copies share the stops until
/// written. Where a NaN location ends up is not promised.
class ZSG_EXPORT ColorGradient {
public:
    [[nodiscard]] unsigned int getNStops() const noexcept;
    /// A copy.
    [[nodiscard]] QList<ColorGradientStop> getStops() const;
    /// A copy of one stop. The index must be below getNStops(): it is not checked.
    [[nodiscard]] ColorGradientStop colorStop(int index) const;

    /// False in a new gradient.
    [[nodiscard]] bool blend() const noexcept { return blend_; }
    void setBlend(bool blend) noexcept { blend_ = blend; }

    /// Adds a stop and puts all stops in order.
    void addColorStop(nyxColor_rgba color, float location, float slopeLeft, float slopeRight);

    /// *Replaces* the stop at `index`; the count stays. Without `sort` the stops may be out of
    /// order afterwards, until something sorts them. Returns false, changing nothing, for an index
    /// that does not exist.
    bool addColorStopAt(unsigned int index, nyxColor_rgba color, float location, float slopeLeft,
                        float slopeRight, bool sort);

    /// Removes every stop and keeps blend().
    void clearStops();
    /// Takes over the stops and the flag of `other`.
    void reset(ColorGradient const& other);
    /// Cuts the list to `count` stops, or extends it with default stops at its end, unsorted.
    void resizeStops(unsigned int count);

    /// Equal stops in the same order, and the same flag.
    bool operator==(ColorGradient const& other) const;

private:
    void sortStops();

    QList<ColorGradientStop> stops_;
    bool blend_ = false;
    bool sorted_ = true; ///< stops_ is known to be in order
};

} // namespace zsg
