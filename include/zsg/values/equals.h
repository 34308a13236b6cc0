#pragma once

#include "zsg/Export.h"
#include "zsg/values/Type.h"

#include "nyxrender/nyxColor.h"

namespace zsg {

/// Whether two values count as the same, so that setting one over the other changes nothing. Always
/// exact. It exists for the types of ZSG_VALUE_TYPES, nyxColor, nyxColor_rgba and nyxShader*
/// (identity), compiled into the library.
///
/// A NaN makes every type unequal to itself, except that FloatArrays, colours and weave patterns
/// that share their data are equal at once, and that in matrices a NaN is equal to anything at its
/// place. Enumerables are compared without the selection, AxaltaColors without the changed mark.
template <class T>
[[nodiscard]] bool equals(T const& a, T const& b);

#define ZSG_DECLARE_EQUALS(member, number, T)                                                      \
    extern template ZSG_TEMPLATE_DECLARATION bool equals<T>(T const& a, T const& b);
ZSG_VALUE_TYPES(ZSG_DECLARE_EQUALS)
#undef ZSG_DECLARE_EQUALS
extern template ZSG_TEMPLATE_DECLARATION bool equals<nyxColor>(nyxColor const&, nyxColor const&);
extern template ZSG_TEMPLATE_DECLARATION bool equals<nyxColor_rgba>(nyxColor_rgba const&,
                                                                    nyxColor_rgba const&);
extern template ZSG_TEMPLATE_DECLARATION bool equals<nyxShader*>(nyxShader* const&,
                                                                 nyxShader* const&);

} // namespace zsg
