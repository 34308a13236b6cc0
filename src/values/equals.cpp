#include "zsg/values/equals.h"

#include "values/equality.h"
#include "zsg/values/AnimationCurve.h"
#include "zsg/values/AxaltaColor.h"
#include "zsg/values/ColorGradient.h"
#include "zsg/values/FilePath.h"

#include "zcore/ZColorExt.h"
#include "zcore/ZColorExtAlpha.h"

namespace zsg {

template <class T>
bool equals(T const& a, T const& b) {
    return isSame(a, b);
}

#define ZSG_DEFINE_EQUALS(member, number, T)                                                       \
    template ZSG_TEMPLATE_DEFINITION bool equals<T>(T const& a, T const& b);
ZSG_VALUE_TYPES(ZSG_DEFINE_EQUALS)
#undef ZSG_DEFINE_EQUALS
template ZSG_TEMPLATE_DEFINITION bool equals<nyxColor>(nyxColor const&, nyxColor const&);
template ZSG_TEMPLATE_DEFINITION bool equals<nyxColor_rgba>(nyxColor_rgba const&,
                                                            nyxColor_rgba const&);
template ZSG_TEMPLATE_DEFINITION bool equals<nyxShader*>(nyxShader* const&, nyxShader* const&);

} // namespace zsg
