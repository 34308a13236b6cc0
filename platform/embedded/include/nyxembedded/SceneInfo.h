#pragma once

#include "nyxrender/Ids.h"
#include "nyxrender/nyxColor.h"

#include <cstdint>
#include <string>
#include <vector>

// Copies of what the scene holds, for hosts that show it and tests that check it.

namespace nyx::embedded {

struct ColorInfo {
    nyx::ColorId id;
    std::uint32_t flags = 0; ///< 1: multi-colour, 4: the temporary colour
    std::string name;
    nyxColor_rgba value;
    std::vector<nyx::ColorId> subColors;
    nyx::ColorId activeSub;
};

struct ColorwayInfo {
    nyx::ColorwayId id;
    std::uint32_t flags = 0; ///< 1: deleted, 2: active
    std::string name;
    std::vector<nyx::ColorId> multiColors;
    std::vector<nyx::ColorId> activeSubs;
};

/// A parameter of one of a material's nodes, and the colour that it is bound to.
struct PlaceInfo {
    std::uint32_t node = 0;
    std::string parameter;
    nyx::ColorId color;
};

struct MaterialInfo {
    nyx::MaterialId id;
    std::string name;
    std::vector<PlaceInfo> places;
    bool inUse = false; ///< by any object
};

/// A group, an object or a light.
struct ItemInfo {
    nyx::GroupItemId id;
    bool isGroup = false;
    bool isLight = false;
    std::string name;
    nyx::GroupItemId parent;  ///< invalid: at the top
    nyx::MaterialId material; ///< invalid: none
};

} // namespace nyx::embedded
