#pragma once

#include <string>
#include <vector>

namespace app {

/// What is added to the message that nothing has the name `word`: "; did you mean \"Key Light\"?".
/// It is the name that differs by the case of its letters only, or the one that begins with the
/// word where blanks part it from the rest, which only quotes keep together, or the nearest. Empty
/// when there is none.
[[nodiscard]] std::string didYouMean(std::string const& word,
                                     std::vector<std::string> const& names);

} // namespace app
