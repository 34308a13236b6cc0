#include "zsg/materials/IShaderEdge.h"

namespace zsg {

IShaderEdge::~IShaderEdge() = default;

} // namespace zsg
