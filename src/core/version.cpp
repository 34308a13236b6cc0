#include "zsg/version.h"

namespace zsg {

char const* version() noexcept { return ZSG_VERSION_STRING; }

int versionNumber() noexcept { return ZSG_VERSION; }

} // namespace zsg
