#pragma once

#include "colors/announce.h"
#include "zsg/colors/ColorDB.h"

#include <vector>

// What several commands and operations ask of the colorways.
namespace zsg {

/// The colorways of the scene whose edit satisfies `wanted`, in their order.
template <class Predicate>
std::vector<nyx::ColorwayId> colorwaysWhere(ColorDB& colorDB, Predicate const& wanted) {
    std::vector<nyx::ColorwayId> found = copied(colorDB.colorways());
    std::erase_if(found, [&](nyx::ColorwayId id) {
        ZColorwayEdit const* const edit = colorDB.getColorwayParameters(id);
        return !edit || !wanted(*edit);
    });
    return found;
}

/// Sets a flag through `set` and pushes the colorway; false when it has no edit.
inline bool setColorwayFlag(ColorDB& colorDB, nyx::ColorwayId id, void (ZColorwayEdit::*set)(bool),
                            bool on) {
    ZColorwayEdit* const edit = colorDB.getColorwayParameters(id);
    if (!edit) {
        return false;
    }
    (edit->*set)(on);
    colorDB.pushColorway(id);
    return true;
}

} // namespace zsg
