#pragma once

#include <map>
#include <string>
#include <vector>

namespace app {

/// Dumps of the scene that a script keeps to compare with.
struct KeptScenes {
    std::map<std::string, std::string> byName;

    /// Throws CommandError where nothing is kept under that name.
    [[nodiscard]] std::string const& at(std::string const& name) const;
};

/// How a dump differs from an earlier one, by its lines. Records are never taken out of a scene, so
/// what edits made is still there when they are undone: as lines that are new.
struct SceneDifference {
    std::vector<std::string> gone; ///< in the earlier dump's order
    std::vector<std::string> made; ///< in the later one's
};
[[nodiscard]] SceneDifference difference(std::string const& before, std::string const& after);

} // namespace app
