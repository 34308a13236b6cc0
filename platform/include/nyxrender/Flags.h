#pragma once

#include <cstdint>

namespace nyx {

/// 32 independent bits named by the enumeration E.
template <class E>
class Flags {
public:
    constexpr Flags() = default;
    constexpr Flags(E flag) : bits_(static_cast<std::uint32_t>(flag)) {}
    [[nodiscard]] static constexpr Flags fromBits(std::uint32_t bits) {
        Flags flags;
        flags.bits_ = bits;
        return flags;
    }

    [[nodiscard]] constexpr std::uint32_t bits() const { return bits_; }
    /// True when any bit of `mask` is set.
    [[nodiscard]] constexpr bool test(std::uint32_t mask) const { return (bits_ & mask) != 0; }

    friend constexpr bool operator==(Flags, Flags) = default;

private:
    std::uint32_t bits_ = 0;
};

} // namespace nyx
