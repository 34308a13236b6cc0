#pragma once

#include "host/Arguments.h"
#include "host/pictures/Ink.h"

#include <string>

namespace app {

class Host;
struct Picture;

/// Where a picture goes and what it looks like there: the words PATH [dark].
struct PictureFile {
    std::string path; ///< in UTF-8; its extension names the format
    bool dark = false;

    int failingStep = 0; ///< of writing, see nyx::embedded::failingTarget(); 0: none

    [[nodiscard]] static PictureFile take(Host& host, Arguments& arguments);

    /// Writes a .svg, which follows the page that it is shown on unless it is to be dark, or a
    /// .png, which is light unless it is to be dark. Throws CommandError when that fails or the
    /// extension is another.
    void write(Picture const& picture) const;
};

} // namespace app
