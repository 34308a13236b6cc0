#pragma once

#include "nyxrender/Ids.h"

#include <cstdint>
#include <string>
#include <vector>

namespace nyx::embedded {

/// A colorway of the scene: the multi-colours that it covers, and the sub-colour that it makes
/// active in each.
struct ColorwayRecord {
    nyx::ColorwayId id;
    std::uint32_t flags = 0; ///< nyxColorway_flags
    std::string name;        ///< UTF-8
    std::vector<nyx::ColorId> multiColors;
    std::vector<nyx::ColorId> activeSubs; ///< meant to be as long as multiColors; nothing forces it

    friend bool operator==(ColorwayRecord const&, ColorwayRecord const&) = default;
};

} // namespace nyx::embedded
