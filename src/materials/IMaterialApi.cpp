#include "zsg/materials/IMaterialApi.h"

namespace zsg {

IMaterialApi::IMaterialApi() = default;

IMaterialApi::~IMaterialApi() = default;

} // namespace zsg
