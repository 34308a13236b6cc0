#include "zsg/values/Variant.h"

#include "zsg/values/ValueVariant.h"

#include "values/defaults.h"

#include <memory>

namespace zsg {

Variant::~Variant() = default;

Type Variant::type() const { return Type::Null; }

bool Variant::set(void const*) { return false; }

void Variant::get(void*) const {}

bool Variant::copyTo(Variant&) const { return false; }

Variant* Variant::cloneValue() const {
    std::unique_ptr<Variant> clone(makeVariant(type()));
    if (clone) {
        copyTo(*clone);
    }
    return clone.release();
}

Variant* makeVariant(Type type) {
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

} // namespace zsg
