#pragma once

#include <string>

class nyxScene;

namespace nyx::embedded {

// The scene file, described in docs/formats.md. What these return is a message for people, empty on
// success. Main thread.

/// Fills an empty scene from a JSON text; on failure it is left half filled.
[[nodiscard]] std::string loadSceneText(nyxScene& scene, std::string const& json);
/// The same from a file. `path` is UTF-8; the message begins with it.
[[nodiscard]] std::string loadSceneFile(nyxScene& scene, std::string const& path);
/// The JSON text of a scene, whatever is in it; loading it gives back the same scene.
[[nodiscard]] std::string saveSceneText(nyxScene const& scene);
/// Writes that text to a file beside `path` and renames it, so that a save that fails half-way
/// leaves the file of the last one. `failingStep` is failingTarget()'s.
[[nodiscard]] std::string saveSceneFile(nyxScene const& scene, std::string const& path,
                                        int failingStep);

} // namespace nyx::embedded
