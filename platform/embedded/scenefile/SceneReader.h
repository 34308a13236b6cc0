#pragma once

#include <nlohmann/json.hpp>

class nyxScene;

namespace nyx::embedded {

/// Fills an empty scene from a parsed scene file. Throws SceneFileError at the first thing that is
/// wrong, and leaves `scene` half filled then.
void readScene(nlohmann::json const& document, nyxScene& scene);

} // namespace nyx::embedded
