#pragma once

#include "nyxembedded/BrushStroke.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <random>
#include <vector>

namespace nyx::embedded {

/// One print of a brush.
struct Dab {
    float x = 0, y = 0;
    float diameter = 0; ///< above 0
    float angle = 0;    ///< of the image, in radians, clockwise
    float flow = 1;     ///< above 0, at most 1, as the cap
    float cap = 1;      ///< what the texels under it are covered at most
};

/// Where a stroke prints its brush, and how, while its points come in. The dabs are the same,
/// however the points are portioned out. Dabs that would leave no trace are left out.
class StrokeDabs {
public:
    /// The brush is borrowed.
    StrokeDabs(BrushSettings const& brush, float texelsPerUnit, std::uint32_t seed);

    /// A point that is no number is left out.
    void add(BrushStroke::Point point);
    /// No more points come.
    void end();
    /// The dabs since the last call.
    [[nodiscard]] std::vector<Dab> take();

private:
    [[nodiscard]] bool isFull() const;
    [[nodiscard]] float scale(int bit, float pressure) const;
    [[nodiscard]] float diameter(float pressure) const;
    [[nodiscard]] float step(float pressure) const;
    [[nodiscard]] float random();
    void print(BrushStroke::Point const& at);
    void printLast();
    void goTo(BrushStroke::Point const& b);

    BrushSettings const& brush_;
    BrushSettings::Jittered size_;
    float unit_;
    std::mt19937 random_;
    std::vector<Dab> dabs_;
    std::size_t made_ = 0;
    std::optional<BrushStroke::Point> last_;
    float direction_ = 0;
    float covered_ = 0;      ///< of the way to the next dab
    bool isLastDue_ = false; ///< whether there is to be a dab at the last point
};

/// All dabs of a stroke.
[[nodiscard]] std::vector<Dab> strokeDabs(BrushSettings const& brush, BrushStroke const& stroke);

} // namespace nyx::embedded
