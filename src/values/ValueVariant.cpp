#include "zsg/values/ValueVariant.h"

#include "values/defaults.h"
#include "values/equality.h"
#include "values/exactValue.h"

#include <memory>
#include <type_traits>
#include <utility>

namespace zsg {

template <class T>
ValueVariant<T>::ValueVariant(T const& value) : value_(value) {}

template <class T>
ValueVariant<T>::ValueVariant(ValueVariant const& other) = default;

template <class T>
ValueVariant<T>::ValueVariant(ValueVariant&& other) noexcept = default;

template <class T>
ValueVariant<T>& ValueVariant<T>::operator=(ValueVariant const& other) = default;

template <class T>
ValueVariant<T>& ValueVariant<T>::operator=(ValueVariant&& other) noexcept = default;

template <class T>
ValueVariant<T>::~ValueVariant() = default;

template <class T>
Type ValueVariant<T>::type() const {
    return typeOf<T>;
}

template <class T>
bool ValueVariant<T>::set(void const* value) {
    // For an Enumerable this drops a selection that comes with the same options; callers rely on
    // false meaning that nothing was written.
    T const& wanted = *static_cast<T const*>(value);
    if (isSame(wanted, value_)) {
        return false;
    }
    value_ = wanted;
    return true;
}

template <class T>
void ValueVariant<T>::get(void* out) const {
    *static_cast<T*>(out) = value_;
}

template <class T>
bool ValueVariant<T>::copyTo(Variant& target) const {
    Q_ASSERT(target.type() == typeOf<T>);
    if constexpr (std::is_base_of_v<ZColorExt, T>) {
        T own = value_;
        own.detach();
        return target.set(&own);
    } else {
        return target.set(&value_);
    }
}

namespace {

Variant* makeHolder(Type type) {
    switch (type) {
#define ZSG_MAKE_HOLDER(member, number, T)                                                         \
    case Type::member:                                                                             \
        return new ValueVariant<T>(defaultValue<T>());
        ZSG_VALUE_TYPES(ZSG_MAKE_HOLDER)
#undef ZSG_MAKE_HOLDER
    default:
        return nullptr;
    }
}

/// What setting a new holder to the value leads to: one that equals the default changes nothing.
template <class T>
Variant* cloneOf(T const& value) {
    if (isSame(value, defaultValue<T>())) {
        return new ValueVariant<T>(defaultValue<T>());
    }
    if constexpr (std::is_base_of_v<ZColorExt, T>) {
        T own = value;
        own.detach();
        return new ValueVariant<T>(own);
    } else {
        return new ValueVariant<T>(value);
    }
}

} // namespace

// These two stand beside the definitions of the holders and call no exported function, which could
// not be inlined: creating and cloning then cost little more than the allocation.
Variant* makeVariant(Type type) { return makeHolder(type); }

Variant* Variant::cloneValue() const {
    Type const wanted = type();
    switch (wanted) {
#define ZSG_CLONE_HOLDER(member, number, T)                                                        \
    case Type::member:                                                                             \
        if (T const* const value = exactValue<T>(*this)) {                                         \
            return cloneOf(*value);                                                                \
        }                                                                                          \
        break;
        ZSG_VALUE_TYPES(ZSG_CLONE_HOLDER)
#undef ZSG_CLONE_HOLDER
    default:
        break;
    }
    std::unique_ptr<Variant> clone(makeHolder(wanted));
    if (clone) {
        copyTo(*clone);
    }
    return clone.release();
}

#define ZSG_DEFINE_HOLDER(member, number, T) template class ZSG_TEMPLATE_DEFINITION ValueVariant<T>;
ZSG_VALUE_TYPES(ZSG_DEFINE_HOLDER)
#undef ZSG_DEFINE_HOLDER

} // namespace zsg
