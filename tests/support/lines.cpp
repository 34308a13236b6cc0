#include "support/lines.h"

#include <sstream>

std::string selectLines(std::string const& text, char const* separator,
                        std::function<bool(std::string const&)> const& wanted) {
    std::istringstream stream(text);
    std::string selected;
    for (std::string line; std::getline(stream, line);) {
        if (!line.empty() && wanted(line)) {
            selected += (selected.empty() ? "" : separator) + line;
        }
    }
    return selected;
}
