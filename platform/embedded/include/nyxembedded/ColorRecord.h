#pragma once

#include "nyxrender/Ids.h"
#include "nyxrender/nyxColor.h"
#include "nyxrender/nyxScene_api.h"

#include <string>
#include <vector>

namespace nyx::embedded {

/// A colour of the scene, or a multi-colour, as the scene holds it and its file keeps it.
struct ColorRecord : nyxColor_record {
    std::string name; ///< UTF-8
    std::string originalName;
    nyxColor_rgba value{0, 0, 0, 1};
    std::vector<nyx::ColorId> subColors; ///< may name colours that are gone, or one twice
    nyx::ColorId activeSub;              ///< meant to be one of them; nothing forces it

    [[nodiscard]] bool isMulti() const { return (flags & nyxColor_flags::MultiColor) != 0; }
    [[nodiscard]] bool isTemporary() const { return (flags & nyxColor_flags::Temporary) != 0; }
};

} // namespace nyx::embedded
