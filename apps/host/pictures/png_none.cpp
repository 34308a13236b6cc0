#include "host/pictures/png.h"

#include "host/Arguments.h"

namespace app {

std::string png(Picture const&, Theme) {
    throw CommandError("this program was built without drawing into a .png; write a .svg");
}

} // namespace app
