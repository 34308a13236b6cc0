#include "zsg/materials/IMaterialHandler.h"

namespace zsg {

IMaterialHandler::IMaterialHandler() = default;

IMaterialHandler::~IMaterialHandler() = default;

} // namespace zsg
