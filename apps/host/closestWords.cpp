#include "host/closestWords.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace app {

namespace {

/// Row by row of the usual table, of which the last two rows are kept.
std::size_t slips(std::string_view a, std::string_view b) {
    std::vector<std::size_t> before(b.size() + 1);
    std::vector<std::size_t> last(b.size() + 1);
    std::vector<std::size_t> row(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j) {
        last[j] = j;
    }
    for (std::size_t i = 1; i <= a.size(); ++i) {
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (a[i - 1] != b[j - 1])});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1]) {
                row[j] = std::min(row[j], before[j - 2] + 1);
            }
        }
        before.swap(last);
        last.swap(row);
    }
    return last.back();
}

} // namespace

std::string_view closestWords(std::string_view word, std::span<std::string_view const> candidates) {
    std::string_view best;
    std::size_t fewest = word.size() / 3 + 1;
    for (std::string_view const candidate : candidates) {
        if (std::size_t const count = slips(word, candidate); count < fewest) {
            fewest = count;
            best = candidate;
        }
    }
    return best;
}

} // namespace app
