#pragma once

#include "nyxrender/Ids.h"

namespace zsg {

/// A multi-colour and one of its sub-colours: the one to make or keep active.
struct MultiColorPair {
    nyx::ColorId multiColor;
    nyx::ColorId subColor;

    friend bool operator==(MultiColorPair const&, MultiColorPair const&) = default;
};

} // namespace zsg
