#include "support/sourceDir.h"

#include "zsg/values/pathFromUtf8.h"

namespace {

// Found out before a test changes the folder: on Windows a path without a drive means the current
// one.
std::string const& absolute() {
    static std::string const path = [] {
        auto const text = std::filesystem::absolute(zsg::pathFromUtf8(ZSG_SOURCE_DIR));
        std::u8string const utf8 = text.generic_u8string();
        return std::string(utf8.begin(), utf8.end());
    }();
    return path;
}
[[maybe_unused]] std::string const& atStart = absolute();

} // namespace

std::string sourceDir() { return absolute(); }
