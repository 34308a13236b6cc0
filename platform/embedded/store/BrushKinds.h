#pragma once

#include "nyxrender/Span.h"
#include "nyxrender/nyxScene_api.h"

#include <string_view>

namespace nyx::embedded {

/// The type codes of brush parameters beside those of nyxScene_api.
enum BrushParamType : int {
    BrushInteger = 2,
    BrushBoolean = 4,
    BrushFile = 5,
    BrushShader = 6,
};

/// A parameter that every node of a kind has.
struct BrushParamKind {
    char const* name;
    int type;
    float initial = 0;          ///< of a number, of a boolean, of each part of a colour
    char const* hint = nullptr; ///< limits and ranges for the user interface
};

struct BrushKind {
    char const* name;
    Span<BrushParamKind> params;
};

/// The kind of that name; null when this renderer has no such kind.
[[nodiscard]] BrushKind const* findBrushKind(std::string_view name);

} // namespace nyx::embedded
