#pragma once

#include "zsg/Export.h"
#include "zsg/values/Type.h"

#include <iosfwd>
#include <optional>

namespace zsg {

/// A holder of one typed value behind untyped pointers. ValueVariant<T> owns its value; the holders
/// behind a brush's parameters refer to a field of the brush. This base holds nothing and has the
/// type Null.
///
/// set, get and copyTo trust their caller: what the pointer or the target holds must be of the C++
/// type that belongs to type(). tryGet checks. A holder belongs to one thread at a time.
class ZSG_EXPORT Variant {
public:
    Variant() = default;
    Variant(Variant const&) = default;
    Variant& operator=(Variant const&) = default;
    virtual ~Variant();

    [[nodiscard]] virtual Type type() const;
    /// Takes over `*value`. True when the value changed by the type's `equals`: an equal value
    /// gives false, and NaN never equals itself. The base ignores it.
    virtual bool set(void const* value);
    /// Assigns the value to `*out`. The base leaves `*out` alone.
    virtual void get(void* out) const;
    /// Sets `target`, which must have the same type(), to this value; true when `target` changed.
    /// An owning holder of a colour hands over a copy that shares no data with it.
    virtual bool copyTo(Variant& target) const;

    /// A new owning holder with a copy of the value, also when this holder only refers to one. The
    /// caller owns it and deletes it. Null when makeVariant has no holder for type(). The copy is a
    /// `set` on the type's default value, so an Enumerable without options loses its selection.
    [[nodiscard]] Variant* cloneValue() const;
};

/// A new ValueVariant with the type's default: zero, false, empty, the identity matrix, opaque
/// black, or what the value class makes of itself. The caller owns it and deletes it. Null for
/// Null, Node, the shader types and numbers that are no type.
[[nodiscard]] ZSG_EXPORT Variant* makeVariant(Type type);

/// The value when `variant` holds a T, else nothing.
template <ValueType T>
[[nodiscard]] std::optional<T> tryGet(Variant const& variant) {
    if (variant.type() != typeOf<T>) {
        return std::nullopt;
    }
    std::optional<T> value(std::in_place);
    variant.get(&*value);
    return value;
}

/// The value for logs: numbers in the stream's format, texts in double quotes as UTF-8, vectors as
/// <x, y>, up to eight integers of a list (else "9 elements"), lists of texts always by their
/// count, colours as RGB(r, g, b) of the active colour or RGBA(r, g, b, a), every other type as its
/// name followed by "()".
ZSG_EXPORT std::ostream& operator<<(std::ostream& os, Variant const& variant);

} // namespace zsg
