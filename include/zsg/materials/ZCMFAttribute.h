#pragma once

#include "zsg/Export.h"

#include <QString>

#include <cstdint>

/// What the value of a CMF attribute is. The numbers stand in schema files; the colour kinds are
/// notations that the application tells apart, and what 2 and 7 are is the application's alone. A
/// file may also hold a negative number; 8 and above are no kinds.
enum class ZCMFAttributeKind : std::int32_t {
    Text = 0,
    Image = 1,
    Other2 = 2,
    Color3 = 3,
    Color4 = 4,
    Color5 = 5,
    Color6 = 6,
    Other7 = 7,
};

namespace zsg {

/// One property that the user interface shows for a material's CMF (colour, material, finish)
/// information. A plain value.
struct ZSG_EXPORT ZCMFAttribute {
    QString name; ///< the display name
    bool visible = true;
    ZCMFAttributeKind kind = ZCMFAttributeKind::Text;
    QString extra = {}; ///< the application's; schema files do not hold it

    /// Whether the value is a colour.
    [[nodiscard]] static bool isColorValue(ZCMFAttributeKind kind) noexcept;
    /// True for text, and for every number that is no kind.
    [[nodiscard]] static bool isExportable(ZCMFAttributeKind kind) noexcept;

    friend bool operator==(ZCMFAttribute const&, ZCMFAttribute const&) = default;
};

} // namespace zsg
