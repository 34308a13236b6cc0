#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace zsg {

/// The path that UTF-8 text names, to open a standard stream with: the streams and
/// std::filesystem::path take a std::string in the system's own encoding, which is not UTF-8
/// everywhere. Throws std::bad_alloc, and on Windows std::system_error for text that is not UTF-8.
[[nodiscard]] inline std::filesystem::path pathFromUtf8(std::string_view text) {
    return std::filesystem::path(std::u8string(text.begin(), text.end()));
}

} // namespace zsg
