#pragma once

#include <string>

class nyxScene;

namespace nyx::embedded {

/// The scene file of a scene: one record per line, keys in a fixed order, what has its default left
/// out.
[[nodiscard]] std::string writeScene(nyxScene const& scene);

} // namespace nyx::embedded
