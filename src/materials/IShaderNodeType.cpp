#include "zsg/materials/IShaderNodeType.h"

namespace zsg {

IShaderNodeType::~IShaderNodeType() = default;

} // namespace zsg
