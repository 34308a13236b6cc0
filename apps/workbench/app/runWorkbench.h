#pragma once

#include "workbench/app/CommandLine.h"

namespace workbench {

class Application;

/// Everything of the program but the application object and the scale, which come first. The result
/// is the code that the program ends with; what went wrong is on the error stream.
[[nodiscard]] int runWorkbench(CommandLine const& line, Application& application);

} // namespace workbench
