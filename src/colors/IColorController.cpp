#include "zsg/colors/IColorController.h"

namespace zsg {

IColorController::~IColorController() = default;

} // namespace zsg
