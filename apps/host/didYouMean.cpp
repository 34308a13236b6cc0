#include "host/didYouMean.h"

#include "host/closestWords.h"
#include "host/printable.h"

#include <QString>

#include <algorithm>
#include <string_view>

namespace app {

std::string didYouMean(std::string const& word, std::vector<std::string> const& names) {
    if (word.empty() || word.size() > longestWord) {
        return {};
    }
    QString const wanted = QString::fromStdString(word).toCaseFolded();
    auto const firstThat = [&names](auto const& isIt) {
        auto const found = std::ranges::find_if(names, [&](std::string const& name) {
            return isIt(QString::fromStdString(name).toCaseFolded());
        });
        return found == names.end() ? std::string() : *found;
    };
    std::string meant = firstThat([&](QString const& name) { return name == wanted; });
    if (meant.empty()) {
        meant = firstThat([&](QString const& name) { return name.startsWith(wanted + ' '); });
    }
    if (meant.empty()) {
        std::vector<std::string_view> const candidates(names.begin(), names.end());
        meant = closestWords(word, candidates);
    }
    return meant.empty() ? std::string()
                         : "; did you mean \"" + printable(meant, longestWord) + "\"?";
}

} // namespace app
