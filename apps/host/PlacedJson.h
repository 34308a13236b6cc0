#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace app {

/// A JSON value that knows the line on which it stands.
struct PlacedJson {
    enum class Kind { Null, Boolean, Number, String, Array, Object };
    struct Key;

    Kind kind = Kind::Null;
    int line = 0;
    double number = 0;
    std::string text;                 ///< strings
    std::vector<PlacedJson> elements; ///< arrays
    std::vector<Key> keys;            ///< objects, in the order of the file

    /// What JSON parsers go by when a key stands twice: the last value; null when there is none.
    [[nodiscard]] PlacedJson const* find(std::string_view key) const;
};

struct PlacedJson::Key {
    std::string name;
    PlacedJson value;
};

/// Reads a text whose first line has the number `firstLine`. When it is no JSON by the letter of
/// RFC 8259, or nested more than 1024 deep, `failedLine` becomes the line where that shows, and
/// else 0.
[[nodiscard]] PlacedJson readPlacedJson(std::string_view text, int firstLine, int& failedLine);

/// One token of a JSON pointer.
[[nodiscard]] std::string pointerToken(std::string_view key);

} // namespace app
