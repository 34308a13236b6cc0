#pragma once

#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"

#include <cstdint>

/// A notification that the renderer sends to the application. Which payload holds depends on the
/// code. It is valid during the call that delivers it.
struct nyxMessage {
    static constexpr std::uint32_t ColorsSynced = 5006;      ///< payload: colors
    static constexpr std::uint32_t ColorwayActivated = 5007; ///< payload: colorway

    std::uint32_t code = 0;
    nyx::Span<nyx::ColorId> colors;
    nyx::ColorwayId colorway;
};
