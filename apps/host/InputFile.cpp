#include "host/InputFile.h"

#include "host/Arguments.h"
#include "zsg/values/pathFromUtf8.h"

#include <filesystem>
#include <fstream>

namespace app {

namespace {

[[noreturn]] void refuse(std::string const& path, std::string const& why) {
    throw CommandError((path.empty() ? "\"\"" : path) + ": " + why);
}

/// In words that are the same on every system, as scripts compare them.
std::string reason(std::error_code error) { return error.default_error_condition().message(); }

} // namespace

void checkInputFile(std::string const& path, std::uintmax_t largest) {
    std::filesystem::path const name = zsg::pathFromUtf8(path);
    std::error_code error;
    std::filesystem::file_status const status = std::filesystem::status(name, error);
    if (!std::filesystem::exists(status)) {
        if (!error) { // not every system calls a missing file an error
            error = std::make_error_code(std::errc::no_such_file_or_directory);
        }
        refuse(path, "cannot be opened: " + reason(error));
    }
    if (std::filesystem::is_directory(status)) {
        refuse(path, "is a folder");
    }
    if (!std::filesystem::is_regular_file(status)) {
        refuse(path, "is no regular file");
    }
    std::uintmax_t const size = std::filesystem::file_size(name, error);
    if (error) {
        refuse(path, "cannot be opened: " + reason(error));
    }
    // The system's own tables count as regular files without contents, and some never end.
    if (size == 0) {
        refuse(path, "is empty");
    }
    if (size > largest) {
        refuse(path, "holds more than " + std::to_string(largest >> 20) + " MiB");
    }
}

std::string readInputFile(std::string const& path, std::uintmax_t largest) {
    checkInputFile(path, largest);
    std::ifstream in(zsg::pathFromUtf8(path), std::ios::binary);
    std::string contents;
    std::string block(std::size_t{1} << 16, '\0');
    while (contents.size() <= largest &&
           (in.read(block.data(), static_cast<std::streamsize>(block.size())) || in.gcount() > 0)) {
        contents.append(block, 0, static_cast<std::size_t>(in.gcount()));
    }
    if (!in.is_open() || in.bad() || contents.size() > largest) {
        refuse(path, "cannot be read");
    }
    return contents;
}

} // namespace app
