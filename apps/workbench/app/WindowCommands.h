#pragma once

#include <string>
#include <vector>

namespace workbench {

class MainWindow;

/// The commands that only a window has, for scripts that show and test it: `window show PANEL`,
/// `window select PANEL TEXT`, `window grab FILE [PANEL]`, `window expect rows PANEL N`. False when
/// the words are no such command; throws app::CommandError.
bool runWindowCommand(MainWindow& window, std::vector<std::string> const& words);

} // namespace workbench
