#pragma once

#include <nlohmann/json.hpp>

#include <stdexcept>
#include <string>

namespace nyx::embedded {

/// Why a scene file was refused: a message for people that begins with the place, either a JSON
/// pointer or a line and a column in bytes.
class SceneFileError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The value of a JSON text. Stricter than JSON itself, so that nothing in a file is quietly lost
/// and no file can exhaust the stack: a key that an object repeats and nesting deeper than 32 are
/// refused. Throws SceneFileError.
[[nodiscard]] nlohmann::json parseStrictly(std::string const& text);

/// A text for use in a message: cut after some 60 bytes, never within a character.
[[nodiscard]] std::string abbreviated(std::string text);
/// One token of a JSON pointer, with "~" and "/" escaped, abbreviated.
[[nodiscard]] std::string pointerToken(std::string const& key);

} // namespace nyx::embedded
