#pragma once

#include <string>

namespace nyx::embedded {
struct Image;
}

namespace app {

class Picture;

// The bytes of a .png file. They throw CommandError when there is no such picture: it is too large,
// or Qt's Gui module was not there to make it.

/// The shapes of a picture but its texts.
[[nodiscard]] std::string pngBytes(Picture const& picture);
[[nodiscard]] std::string pngBytes(nyx::embedded::Image const& image);

} // namespace app
