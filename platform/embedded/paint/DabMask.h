#pragma once

#include "paint/BrushImage.h"
#include "paint/strokeDabs.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace nyx::embedded {

/// A part of a whole, 0 to 1, as cover of 16 bits.
inline std::uint16_t toCover(float part) {
    constexpr float half = 0.5f;
    return static_cast<std::uint16_t>(part * 65535.0f + half);
}

/// How much of each texel around a dab's centre the dab covers: 65535 is all of it. Texels are
/// counted from `left` and `top`, whole texels from the one that the centre lies in.
struct DabMask {
    int left = 0, top = 0;
    int width = 0, height = 0;
    std::vector<std::uint16_t> cover;
    struct Extent {
        int begin = 0, end = 0;
    };
    std::vector<Extent> extents; ///< of each row, where it is not 0

    [[nodiscard]] std::uint16_t const* row(int y) const {
        return &cover[static_cast<std::size_t>(y) * static_cast<std::size_t>(width)];
    }
};

/// Makes the masks of one stroke and keeps those that the next dabs are likely to need again: dabs
/// of equal size and angle share theirs. For that a centre is rounded to a part of a texel, an
/// eighth for small dabs, whole texels for dabs that are so large that nobody sees it.
class DabMasks {
public:
    explicit DabMasks(BrushSettings const& brush);

    /// Valid until the next call.
    [[nodiscard]] DabMask const& mask(Dab const& dab);

private:
    /// A picture of one channel.
    struct Gray {
        int width = 0, height = 0;
        std::vector<std::uint8_t> values;
        [[nodiscard]] float at(int x, int y) const; ///< 0 outside
    };
    [[nodiscard]] Gray const& shapeFor(float diameter);
    [[nodiscard]] DabMask makeDisc(float diameter, float x, float y) const;
    [[nodiscard]] DabMask makeShape(Dab const& dab, float x, float y);

    float hardness_;
    std::vector<Gray> shapes_; ///< each half as large as the one before; empty for a disc
    float diameter_ = 0;       ///< of the masks that are kept
    float angle_ = 0;
    int parts_ = 1; ///< of a texel
    std::array<std::unique_ptr<DabMask>, 64> kept_;
};

} // namespace nyx::embedded
