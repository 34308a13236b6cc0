#include "colors/subColorList.h"

#include <algorithm>

namespace zsg {

std::optional<std::vector<nyx::ColorId>>
replacedSubColor(nyx::Span<nyx::ColorId> subs, nyx::ColorId oldSub, nyx::ColorId newSub) {
    auto const* const found = std::ranges::find(subs, oldSub);
    if (found == subs.end() || !newSub.isValid() || std::ranges::find(subs, newSub) != subs.end()) {
        return std::nullopt;
    }
    std::vector<nyx::ColorId> list(subs.begin(), subs.end());
    list[static_cast<std::size_t>(found - subs.begin())] = newSub;
    return list;
}

} // namespace zsg
