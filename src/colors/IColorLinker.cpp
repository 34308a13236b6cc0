#include "zsg/colors/IColorLinker.h"

namespace zsg {

IColorLinker::~IColorLinker() = default;

} // namespace zsg
