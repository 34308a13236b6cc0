#pragma once

#include <array>
#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>

/// The steps from which all content hashes are made. Constants, masks and order are fixed: clients
/// keep hashes. All arithmetic wraps around.
namespace zsg {

/// The part of combine() that does not wait for the seed, and the part that does. A long chain
/// over few different values is faster with the first done ahead: in one expression, compilers put
/// the constant into the chain.
[[nodiscard]] constexpr std::uint64_t prepared(std::uint64_t value) noexcept {
    return value + 0x9e3779b9;
}
[[nodiscard]] constexpr std::uint64_t combinePrepared(std::uint64_t seed,
                                                      std::uint64_t preparedValue) noexcept {
    return seed ^ (preparedValue + (seed << 6) + (seed >> 2));
}

[[nodiscard]] constexpr std::uint64_t combine(std::uint64_t seed, std::uint64_t value) noexcept {
    return combinePrepared(seed, prepared(value));
}

inline constexpr std::uint64_t fnvStart = 0xcbf29ce484222325;

[[nodiscard]] constexpr std::uint64_t fnvStep(std::uint64_t hash, std::uint64_t byte) noexcept {
    return (hash ^ byte) * 0x100000001b3;
}

/// 64-bit FNV-1a of the bytes of a number, the lowest first.
template <std::unsigned_integral Bits>
[[nodiscard]] constexpr std::uint64_t fnv(Bits bits) noexcept {
    std::uint64_t hash = fnvStart;
    for (std::size_t i = 0; i < sizeof(Bits); ++i) {
        hash = fnvStep(hash, (std::uint64_t{bits} >> (8 * i)) & 0xff);
    }
    return hash;
}

namespace detail {

/// Of the two lower bytes of a quantised float only the highest four bits are ever set, so the
/// first half of its FNV-1a hash is one of sixteen numbers.
inline constexpr auto lowerHalfHashes = [] {
    std::array<std::uint64_t, 16> hashes{};
    for (std::size_t i = 0; i < hashes.size(); ++i) {
        hashes[i] = fnvStep(fnvStep(fnvStart, 0), i << 4);
    }
    return hashes;
}();

} // namespace detail

/// What hash_float() returns, for loops in here.
[[nodiscard]] constexpr std::uint64_t floatHash(float value) noexcept {
    auto const bits = std::bit_cast<std::uint32_t>(value);
    std::uint64_t const lower = detail::lowerHalfHashes[(bits >> 12) & 0xf];
    return fnvStep(fnvStep(lower, (bits >> 16) & 0xff), bits >> 24);
}

/// Doubles that differ only in their lowest 16 mantissa bits hash alike.
[[nodiscard]] constexpr std::uint64_t hash_double(double value) noexcept {
    return fnv(std::bit_cast<std::uint64_t>(value) & 0xFFFF'FFFF'FFFF'0000);
}

/// Combines the hashes of `count` floats into `seed`, one after the other.
[[nodiscard]] constexpr std::uint64_t combineFloats(std::uint64_t seed, float const* values,
                                                    std::size_t count) noexcept {
    for (std::size_t i = 0; i < count; ++i) {
        seed = combine(seed, floatHash(values[i]));
    }
    return seed;
}

/// The hash of a colour: starts from the number of its floats.
[[nodiscard]] constexpr std::uint64_t hash_floats(float const* values, std::size_t count) noexcept {
    return combineFloats(count, values, count);
}

} // namespace zsg
