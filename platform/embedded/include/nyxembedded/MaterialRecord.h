#pragma once

#include "nyxrender/Ids.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace nyx::embedded {

/// A parameter of one of a material's shader nodes, with the colour that it is bound to.
struct MaterialPlace {
    std::uint32_t node = 0;
    std::string parameter;
    nyx::ColorId color; ///< invalid: to none
};

/// A material of the scene. No two of its places have the same node and parameter.
struct MaterialRecord {
    nyx::MaterialId id;
    std::string name;                  ///< UTF-8
    std::vector<MaterialPlace> places; ///< in the order in which they were made
    std::map<std::string, std::string> cmfValues;
    std::string metadata; ///< JSON text, empty when there is none
    std::vector<unsigned> items;
};

} // namespace nyx::embedded
