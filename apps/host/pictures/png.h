#pragma once

#include "host/pictures/Picture.h"

namespace app {

/// The bytes of a .png file. It throws CommandError when there is no such picture: it is too large,
/// Qt's Gui module was not there to make it, or, with texts in it, the program is no graphical
/// application or the system has no font.
[[nodiscard]] std::string png(Picture const& picture, Theme theme);

} // namespace app
