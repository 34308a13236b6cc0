#pragma once

#include "nyxrender/Ids.h"
#include "nyxrender/nyxColor.h"
#include "nyxrender/nyxLayerInfo.h"

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
    nyx::GroupItemId parent;      ///< invalid: at the top
    nyx::MaterialId material;     ///< invalid: none
    nyx::LightLayerId lightLayer; ///< of a light
    bool isUnlisted = false;      ///< a light that lists of light layers leave out
};

/// A layer of a painted surface.
struct LayerInfo {
    std::uint32_t id = 0;
    std::string name;
    nyx::ColorBlendMode mode = nyx::ColorBlendMode::Normal;
    bool deleted = false;
    bool visible = true;
    nyxColor_rgba background;
};

struct SurfaceInfo {
    nyx::SurfaceId id;
    std::string name;
    int resolution = 0;
    bool deleted = false;
    std::uint32_t editLayer = 0;   ///< counted from the bottom
    std::vector<LayerInfo> layers; ///< from the bottom up
    unsigned ignoredCalls = 0;     ///< calls with a layer that the surface did not have
};

} // namespace nyx::embedded
