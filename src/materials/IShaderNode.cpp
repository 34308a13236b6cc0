#include "zsg/materials/IShaderNode.h"

namespace zsg {

IShaderNode::~IShaderNode() = default;

} // namespace zsg
