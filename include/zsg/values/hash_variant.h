#pragma once

#include "zsg/Export.h"

#include <cstdint>

namespace zsg {

class Variant;

/// A content hash of type and value, the same in every build on one Qt version; 0 for null. Equal
/// values hash alike, except for 0.0 and -0.0, a NaN in a matrix and nearly equal weave patterns.
/// Floats are hashed without their lowest mantissa bits, Enumerables by their labels only. A holder
/// without a value, or of a shader, hashes by its type alone.
[[nodiscard]] ZSG_EXPORT std::uint64_t hash_variant(Variant const* variant);

} // namespace zsg
