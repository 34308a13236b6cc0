#include "host/KeptScenes.h"

#include "host/Command.h"

#include <set>
#include <sstream>

namespace app {

namespace {

std::vector<std::string> linesOf(std::string const& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

std::vector<std::string> without(std::vector<std::string> lines,
                                 std::vector<std::string> const& others) {
    std::set<std::string> const known(others.begin(), others.end());
    std::erase_if(lines, [&](std::string const& line) { return known.contains(line); });
    return lines;
}

} // namespace

std::string const& KeptScenes::at(std::string const& name) const {
    auto const found = byName.find(name);
    if (found == byName.end()) {
        throw CommandError("no state is kept as \"" + name + "\"");
    }
    return found->second;
}

SceneDifference difference(std::string const& before, std::string const& after) {
    auto const old = linesOf(before);
    auto const now = linesOf(after);
    return {without(old, now), without(now, old)};
}

} // namespace app
