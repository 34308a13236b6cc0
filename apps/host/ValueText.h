#pragma once

#include "host/Arguments.h"
#include "zsg/values/Type.h"

#include <functional>
#include <span>

namespace zsg {
class Parameter;
}

namespace app {

class Host;

/// Reads the remaining words as a value of a type and hands a pointer to it to `use`, as
/// zsg::Variant::set() wants it. Numbers stand one by one, texts each in a word, colours as
/// takeRgba() reads them; a weave, a gradient or a curve is one that its own commands have given a
/// name. Throws CommandError when the words do not make such a value, or the type has none.
void withValue(Host& host, zsg::Type type, Arguments& arguments,
               std::function<void(void const*)> const& use);

/// Reads the remaining words as a value of the parameter's type and sets it; whether it changed.
/// Throws as withValue() does.
bool setValue(Host& host, zsg::Parameter& parameter, Arguments& arguments);

/// Every type that has values, in the order of their numbers.
std::span<zsg::Type const> valueTypes();

/// The type of a name as zsg::typeName() writes it; throws CommandError for any other.
zsg::Type takeType(Arguments& arguments);

} // namespace app
