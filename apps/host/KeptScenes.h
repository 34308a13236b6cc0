#pragma once

#include <map>
#include <string>

namespace app {

/// Dumps of the scene that a script keeps to compare with.
struct KeptScenes {
    std::map<std::string, std::string> byName;
};

} // namespace app
