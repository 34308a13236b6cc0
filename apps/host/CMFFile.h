#pragma once

#include "zsg/materials/ZCMFSchema.h"

#include <string>

namespace app {

/// Writes a schema to a file. When that fails (a full disk, say) what was there before stays, and
/// CommandError is thrown.
void saveCMFFile(zsg::ZCMFSchema const& schema, std::string const& path);

} // namespace app
