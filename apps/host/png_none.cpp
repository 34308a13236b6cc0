#include "host/Arguments.h"
#include "host/png.h"

namespace app {

namespace {

[[noreturn]] void refuse() { throw CommandError("this program was built without .png pictures"); }

} // namespace

std::string pngBytes(Picture const&) { refuse(); }

std::string pngBytes(nyx::embedded::Image const&) { refuse(); }

} // namespace app
