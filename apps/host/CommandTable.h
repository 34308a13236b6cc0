#pragma once

#include "host/Command.h"

#include <string>
#include <vector>

namespace app {

/// Every family, in the order of the help.
[[nodiscard]] std::vector<Family> const& families();

/// Every command, sorted by name.
[[nodiscard]] std::vector<Command const*> const& allCommands();

/// Finds the command that the words begin with, the longest name first, hands it the rest, and
/// delivers what the renderer has to say, also when it fails. Throws CommandError.
void carryOut(Host& host, std::vector<std::string> const& words);

} // namespace app
