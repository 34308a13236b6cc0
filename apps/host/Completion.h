#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace app {

class Host;

/// What could stand in place of the unfinished word at the end of a line.
struct Completion {
    std::size_t start = 0; ///< the byte of the line at which that word begins
    /// What is to stand there now: the word as it has to be typed, quotes and all, with a blank
    /// behind it when nothing else can be meant; or as far as all that can be meant agree.
    std::string text;
    std::vector<std::string> choices; ///< what can be meant, sorted; empty when nothing is
};

/// Completes the last word of `line`, which ends at the cursor: the words of a command's name, then
/// what its arguments ask for: names of records and values, keywords, files. Names match whatever
/// the case of their letters, and are written as they are.
[[nodiscard]] Completion completionOf(Host& host, std::string_view line);

} // namespace app
