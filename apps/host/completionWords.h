#pragma once

#include <string>
#include <vector>

namespace app {

class Host;

/// What can be typed for a placeholder of the command table: names of records, or their ids ("=30",
/// of materials 30) where a name cannot be typed or would be taken for another's id; names of
/// values that commands made. `words` are the words before it, the command's own too. Nothing for a
/// placeholder that stands for something new.
[[nodiscard]] std::vector<std::string> wordsFor(Host& host, std::string const& placeholder,
                                                std::vector<std::string> const& words);

} // namespace app
