#pragma once

#include "zsg/values/ValueVariant.h"

#include <typeinfo>

namespace zsg {

/// The value of an owning holder where it lies, which spares a virtual call and a copy; null for
/// every other holder. Only a short cut: nothing may depend on which way is taken, so a type that
/// is not recognised across libraries costs time and no more.
template <class T>
[[nodiscard]] T const* exactValue(Variant const& variant) {
    return typeid(variant) == typeid(ValueVariant<T>)
               ? &static_cast<ValueVariant<T> const&>(variant).value()
               : nullptr;
}

} // namespace zsg
