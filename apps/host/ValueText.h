#pragma once

#include "host/Arguments.h"

#include "zsg/values/Type.h"

#include <functional>

namespace app {

/// Reads the remaining words as a value of a type and hands a pointer to it to `use`, as
/// zsg::Variant::set() wants it. Numbers stand one by one, texts each in a word. Throws
/// CommandError when the words do not make such a value, or the type cannot be written in words.
void withValue(zsg::Type type, Arguments& arguments, std::function<void(void const*)> const& use);

/// The type of a name as zsg::typeName() writes it; throws CommandError for any other.
zsg::Type takeType(Arguments& arguments);

} // namespace app
