#pragma once

#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"

#include <optional>
#include <vector>

namespace zsg {

/// The list with `newSub` where `oldSub` first stands. Nothing unless `oldSub` is listed and
/// `newSub` is a valid id that is not.
[[nodiscard]] std::optional<std::vector<nyx::ColorId>>
replacedSubColor(nyx::Span<nyx::ColorId> subs, nyx::ColorId oldSub, nyx::ColorId newSub);

} // namespace zsg
