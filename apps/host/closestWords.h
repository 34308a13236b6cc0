#pragma once

#include <span>
#include <string_view>

namespace app {

/// The candidate that the fewest slips of the finger lead to: a letter too many, missing, wrong, or
/// two changed over (optimal string alignment distance). Empty when all take more than one slip for
/// every three letters of `word`. The first of several that are equally near.
[[nodiscard]] std::string_view closestWords(std::string_view word,
                                            std::span<std::string_view const> candidates);

} // namespace app
