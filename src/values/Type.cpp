#include "zsg/values/Type.h"

namespace zsg {

char const* typeName(Type type) noexcept {
    switch (type) {
#define ZSG_NAME(member, number, T)                                                                \
    case Type::member:                                                                             \
        return #member;
        ZSG_VALUE_TYPES(ZSG_NAME)
        ZSG_BARE_TYPES(ZSG_NAME)
#undef ZSG_NAME
    }
    return "(invalid type)";
}

} // namespace zsg
