#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace app {

/// What the arguments of a command, as its row in the table has them, allow next, when `words` have
/// been typed behind its name: keywords and placeholders ("on", "off", "COLOR"). Placeholders are
/// those without small letters.
[[nodiscard]] std::set<std::string> allowedNext(std::string_view arguments,
                                                std::vector<std::string> const& words);

[[nodiscard]] bool isPlaceholder(std::string_view word);

} // namespace app
