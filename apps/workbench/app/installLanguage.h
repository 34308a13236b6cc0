#pragma once

#include <string>

namespace workbench {

struct CommandLine;

/// From now on the window, the library and Qt's own dialogs speak the language of the command line,
/// or that of the system. What runs by itself stays English unless it is told, because scripts read
/// texts. Returns what is wrong with the language that was asked for; empty when nothing.
[[nodiscard]] std::string installLanguage(CommandLine const& line);

} // namespace workbench
