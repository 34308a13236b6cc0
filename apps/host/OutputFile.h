#pragma once

#include <string>
#include <string_view>

namespace app {

/// Writes a file (path in UTF-8) as a whole or not at all: on failure what had the name before is
/// as it was. Throws CommandError, also when the disk is full, as it is at step `failingStep` of
/// nyx::embedded::failingTarget().
void writeOutputFile(std::string const& path, std::string_view bytes, int failingStep = 0);

} // namespace app
