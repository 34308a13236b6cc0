#include "values/PointerVariant.h"

#include "values/equality.h"

#include "zcore/ZColorExt.h"

namespace zsg {

template <class T>
PointerVariant<T>::~PointerVariant() = default;

template <class T>
Type PointerVariant<T>::type() const {
    return typeOf<T>;
}

template <class T>
bool PointerVariant<T>::set(void const* value) {
    // Unlike an owning holder this also writes an equal value: the target's owner may look at what
    // the comparison leaves out, such as the selection of an Enumerable or a colour's revision.
    T const& wanted = *static_cast<T const*>(value);
    bool const changes = !isSame(wanted, *target_);
    *target_ = wanted;
    return changes;
}

template <class T>
void PointerVariant<T>::get(void* out) const {
    *static_cast<T*>(out) = *target_;
}

template <class T>
bool PointerVariant<T>::copyTo(Variant& target) const {
    // Also for colours as it is: only the holders that own a colour detach it first.
    Q_ASSERT(target.type() == typeOf<T>);
    return target.set(target_);
}

template class PointerVariant<ZColorExt>;
template class PointerVariant<QString>;
template class PointerVariant<bool>;
template class PointerVariant<float>;
template class PointerVariant<Enumerable>;
template class PointerVariant<int>;
template class PointerVariant<nyxShader*>;

} // namespace zsg
