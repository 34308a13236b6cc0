#pragma once

#include "zsg/Export.h"

#include <cstdint>

struct nyxVector2f;
struct nyxVectorf;
struct nyxVector;

/// Content hashes that are the same in every build and on every machine. Any thread.
namespace zsg {

[[nodiscard]] ZSG_EXPORT std::uint64_t hash_int(int value) noexcept;

/// Floats that differ only in their lowest 12 mantissa bits hash alike; 0.0 and -0.0 do not.
[[nodiscard]] ZSG_EXPORT std::uint64_t hash_float(float value) noexcept;

/// 0 without limits, an odd number with them. `low` and `high` are quantised as in hash_float().
[[nodiscard]] ZSG_EXPORT std::uint64_t hash_limits(bool has, float low, float high) noexcept;

/// These start from the hash of x, so a vector does not hash like a list of the same numbers.
[[nodiscard]] ZSG_EXPORT std::uint64_t hash_nyxVector2f(nyxVector2f const& value) noexcept;
[[nodiscard]] ZSG_EXPORT std::uint64_t hash_nyxVectorf(nyxVectorf const& value) noexcept;
/// Here the lowest 16 mantissa bits do not count.
[[nodiscard]] ZSG_EXPORT std::uint64_t hash_nyxVector(nyxVector const& value) noexcept;

} // namespace zsg
