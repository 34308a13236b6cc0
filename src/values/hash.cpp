#include "zsg/values/hash.h"

#include "values/hashCombine.h"

#include "nyxrender/nyxVector.h"

namespace zsg {

std::uint64_t hash_int(int value) noexcept { return fnv(static_cast<std::uint32_t>(value)); }

std::uint64_t hash_float(float value) noexcept { return floatHash(value); }

std::uint64_t hash_limits(bool has, float low, float high) noexcept {
    if (!has) {
        return 0;
    }
    std::uint64_t const lowBits = std::bit_cast<std::uint32_t>(low);
    std::uint64_t const highBits = std::bit_cast<std::uint32_t>(high);
    return ((highBits >> 12) << 44) | (lowBits & 0xFFFFF000) | 1;
}

std::uint64_t hash_nyxVector2f(nyxVector2f const& value) noexcept {
    return combine(floatHash(value.x), floatHash(value.y));
}

std::uint64_t hash_nyxVectorf(nyxVectorf const& value) noexcept {
    return combine(combine(floatHash(value.x), floatHash(value.y)), floatHash(value.z));
}

std::uint64_t hash_nyxVector(nyxVector const& value) noexcept {
    return combine(combine(hash_double(value.x), hash_double(value.y)), hash_double(value.z));
}

} // namespace zsg
