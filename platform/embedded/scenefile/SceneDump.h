#pragma once

#include <string>

class nyxScene;

namespace nyx::embedded {

/// The whole scene as text for comparison, one line per record: the same for scenes with the same
/// records and settings. What an undo cannot take back is left out: revisions, the next ids, and
/// whether the scene is modified.
[[nodiscard]] std::string dumpScene(nyxScene const& scene);

} // namespace nyx::embedded
