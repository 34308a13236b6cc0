#pragma once

#include <string>
#include <vector>

namespace app {

/// What is suspicious about the text of an index-of-refraction file: what loadIORFile() reads in a
/// way that its writer may not have meant, or skips without a word. `extension` is "nk", "ior" or
/// "csv". One line per finding, each kind at its first place only.
[[nodiscard]] std::vector<std::string> lintIOR(std::string const& text,
                                               std::string const& extension);

} // namespace app
