#include "zsg/values/hash_variant.h"

#include "values/defaults.h"
#include "values/exactValue.h"
#include "values/hashCombine.h"
#include "zsg/values/ValueVariant.h"
#include "zsg/values/hash.h"

#include <QHashFunctions>

#include <array>

namespace zsg {
namespace {

std::uint64_t textHash(QString const& text) { return qHash(QStringView(text), 0); }

std::uint64_t contentHash(bool value) { return fnv(static_cast<std::uint8_t>(value)); }
std::uint64_t contentHash(int value) { return hash_int(value); }
std::uint64_t contentHash(float value) { return floatHash(value); }
std::uint64_t contentHash(double value) { return hash_double(value); }
std::uint64_t contentHash(nyxVector2f const& value) { return hash_nyxVector2f(value); }
std::uint64_t contentHash(nyxVectorf const& value) { return hash_nyxVectorf(value); }
std::uint64_t contentHash(nyxVector const& value) { return hash_nyxVector(value); }
std::uint64_t contentHash(QString const& value) { return textHash(value); }
std::uint64_t contentHash(FilePath const& value) { return textHash(value.toString()); }
std::uint64_t contentHash(WeavePattern const& value) { return value.hash(); }

std::uint64_t contentHash(QList<int> const& value) {
    std::uint64_t hash = 0;
    for (int const element : value) {
        hash = combine(hash, hash_int(element));
    }
    return hash;
}

std::uint64_t contentHash(QList<QString> const& value) {
    std::uint64_t hash = 0;
    for (QString const& element : value) {
        hash = combine(hash, textHash(element));
    }
    return hash;
}

std::uint64_t contentHash(FloatArray const& value) {
    return combineFloats(0, value.constData(), static_cast<std::size_t>(value.size()));
}

std::uint64_t contentHash(nyxMatrix const& value) {
    // The element hashes do not depend on each other; computed ahead, they overlap.
    std::array<std::uint64_t, 16> hashes;
    for (std::size_t i = 0; i < hashes.size(); ++i) {
        hashes[i] = hash_double(value.m[i]);
    }
    std::uint64_t hash = hashes.size();
    for (std::uint64_t const element : hashes) {
        hash = combine(hash, element);
    }
    return hash;
}

std::uint64_t colorHash(nyxColor const& value) {
    float const floats[] = {value.r, value.g, value.b};
    return hash_floats(floats, 3);
}

std::uint64_t colorHash(nyxColor_rgba const& value) {
    float const floats[] = {value.r, value.g, value.b, value.a};
    return hash_floats(floats, 4);
}

std::uint64_t contentHash(ZColorExt const& value) {
    std::uint64_t hash = 0;
    for (int i = 0; i < value.nColors(); ++i) {
        hash = combine(hash, colorHash(static_cast<nyxColor>(value.getColor(i))));
    }
    return hash;
}

std::uint64_t contentHash(ZColorExtAlpha const& value) { return colorHash(value.rgba()); }

std::uint64_t contentHash(AxaltaColor const& value) {
    std::uint64_t hash = combine(0, colorHash(value.getA()));
    hash = combine(hash, colorHash(value.getB()));
    return combine(hash, colorHash(value.getC()));
}

std::uint64_t contentHash(ColorGradient const& value) {
    std::uint64_t hash = value.getNStops();
    for (ColorGradientStop const& stop : value.getStops()) {
        std::uint64_t stopHash = colorHash(stop.getColor());
        for (float const number : {stop.getLocation(), stop.getSlopeLeft(), stop.getSlopeRight()}) {
            stopHash = combine(stopHash, floatHash(number));
        }
        hash = combine(hash, stopHash);
    }
    return hash;
}

std::uint64_t contentHash(AnimationCurve const& value) {
    int const count = value.keyCount();
    auto hash = static_cast<std::uint64_t>(std::int64_t{count});
    for (int i = 0; i < count; ++i) {
        nyx::AnimationKey const& key = value.keyAt(i);
        auto keyHash = static_cast<std::uint64_t>(static_cast<std::int64_t>(key.type));
        for (nyxVector2f const& point : {key.pos, key.in, key.out}) {
            keyHash = combine(keyHash, combine(floatHash(point.x), floatHash(point.y)));
        }
        hash = combine(hash, keyHash);
    }
    return hash;
}

std::uint64_t contentHash(Enumerable const& value) {
    std::uint64_t hash = 0;
    for (auto const& [id, label] : value) {
        hash = combine(hash, textHash(label));
    }
    return hash;
}

template <class T>
std::uint64_t heldHash(Variant const& variant) {
    if (T const* const own = exactValue<T>(variant)) {
        return contentHash(*own);
    }
    // A copy of the default costs no allocation for the types that share their data.
    T value = defaultValue<T>();
    variant.get(&value);
    return contentHash(value);
}

std::uint64_t heldHash(Variant const& variant, Type type) {
    switch (type) {
#define ZSG_HASH(member, number, T)                                                                \
    case Type::member:                                                                             \
        return heldHash<T>(variant);
        ZSG_VALUE_TYPES(ZSG_HASH)
#undef ZSG_HASH
    default:
        return 0;
    }
}

} // namespace

std::uint64_t hash_variant(Variant const* variant) {
    if (!variant) {
        return 0;
    }
    Type const type = variant->type();
    return combine(static_cast<std::uint64_t>(static_cast<std::int64_t>(type)),
                   heldHash(*variant, type));
}

} // namespace zsg
