#include "zsg/values/Variant.h"

namespace zsg {

Variant::~Variant() = default;

Type Variant::type() const { return Type::Null; }

bool Variant::set(void const*) { return false; }

void Variant::get(void*) const {}

bool Variant::copyTo(Variant&) const { return false; }

} // namespace zsg
