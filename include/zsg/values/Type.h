#pragma once

#include "zsg/Export.h"
#include "zsg/values/ValueTypes.h"

#include "nyxrender/nyxMatrix.h"
#include "nyxrender/nyxVector.h"

#include <QList>
#include <QString>

#include <cstdint>

class nyxShader;
class ZColorExt;
class ZColorExtAlpha;

namespace zsg {

class AnimationCurve;
class AxaltaColor;
class ColorGradient;
class Enumerable;
class FilePath;
class FloatArray;
class WeavePattern;

/// What a Variant or a Parameter holds; ValueTypes.h lists the members with their C++ types. Any
/// other number is not a type.
enum class Type : std::int32_t {
#define ZSG_ENUMERATOR(member, number, T) member = number,
    ZSG_VALUE_TYPES(ZSG_ENUMERATOR) ZSG_BARE_TYPES(ZSG_ENUMERATOR)
#undef ZSG_ENUMERATOR
};

/// The enumerator's spelling as a static string, "(invalid type)" for a number that is no type.
[[nodiscard]] ZSG_EXPORT char const* typeName(Type type) noexcept;

/// The Type that stands for a C++ type; declared only for the types of ZSG_VALUE_TYPES and for
/// nyxShader*.
template <class T>
struct TypeOf;
#define ZSG_TYPE_OF(member, number, T)                                                             \
    template <>                                                                                    \
    struct TypeOf<T> {                                                                             \
        static constexpr Type value = Type::member;                                                \
    };
ZSG_VALUE_TYPES(ZSG_TYPE_OF)
#undef ZSG_TYPE_OF
template <>
struct TypeOf<nyxShader*> {
    static constexpr Type value = Type::ShaderBase;
};

template <class T>
inline constexpr Type typeOf = TypeOf<T>::value;

/// A C++ type that a holder can hold.
template <class T>
concept ValueType = requires {
    TypeOf<T>::value;
};

} // namespace zsg
