#include "host/Palette.h"

#include "host/Arguments.h"
#include "host/printable.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdio>
#include <optional>

namespace app {

namespace {

constexpr std::string_view signature = "GIMP Palette";
/// What stands in such files for a colour without a name.
constexpr std::string_view nameless = "Untitled";
constexpr std::string_view blanks = " \t";

std::string_view trimmed(std::string_view text) {
    std::size_t const first = text.find_first_not_of(blanks);
    return first == std::string_view::npos
               ? std::string_view()
               : text.substr(first, text.find_last_not_of(blanks) + 1 - first);
}

/// A whole number of 0 to `most` at the front, which is taken off with the blanks before it.
std::optional<int> takeNumber(std::string_view& text, int most) {
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    int number = 0;
    auto const [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    auto const length = static_cast<std::size_t>(end - text.data());
    bool const ends = length == text.size() || blanks.find(text[length]) != std::string_view::npos;
    if (error != std::errc() || !ends || number < 0 || number > most) {
        return {};
    }
    text.remove_prefix(length);
    return number;
}

/// The lines of a text, counted as editors count them.
class Lines {
public:
    Lines(std::string_view text, std::string const& path) : rest_(text), path_(path) {
        constexpr std::string_view mark = "\xEF\xBB\xBF"; // some editors begin UTF-8 so
        rest_.remove_prefix(rest_.starts_with(mark) ? mark.size() : 0);
    }

    [[nodiscard]] bool next(std::string_view& line) {
        if (rest_.empty()) {
            return false;
        }
        std::size_t const end = std::min(rest_.find('\n'), rest_.size());
        line = rest_.substr(0, end);
        rest_.remove_prefix(std::min(end + 1, rest_.size()));
        line.remove_suffix(line.ends_with('\r') ? 1 : 0);
        ++number_;
        return true;
    }

    [[noreturn]] void refuse(std::string const& why) const {
        throw CommandError(path_ + ':' + std::to_string(number_) + ": " + why);
    }

    /// A name of the line. What a terminal obeys is in no name that a person has given.
    [[nodiscard]] std::string name(std::string_view text) const {
        text = trimmed(text);
        if (invalidUtf8At(text) != std::string_view::npos) {
            refuse("the name is not UTF-8: " + printable(text, longestWord));
        }
        if (printable(text) != text) {
            refuse("the name has a control character: " + printable(text, longestWord));
        }
        return std::string(text);
    }

private:
    std::string_view rest_;
    std::string const& path_;
    int number_ = 0;
};

Palette::Entry entryOf(std::string_view line, Lines const& lines) {
    std::string_view rest = line;
    Palette::Entry entry;
    for (std::uint8_t& part : entry.sRGB) {
        auto const number = takeNumber(rest, 255);
        if (!number) {
            lines.refuse("expected red, green and blue of 0 to 255 and a name, found \"" +
                         printable(line, longestWord) + '"');
        }
        part = static_cast<std::uint8_t>(*number);
    }
    entry.name = lines.name(rest);
    if (entry.name == nameless) {
        entry.name.clear();
    }
    return entry;
}

} // namespace

Palette paletteFromText(std::string_view text, std::string const& path) {
    Lines lines(text, path);
    std::string_view line;
    if (!lines.next(line) || trimmed(line) != signature) {
        lines.refuse("is no palette: the first line is not \"GIMP Palette\"");
    }
    Palette palette;
    while (lines.next(line)) {
        constexpr std::string_view name = "Name:";
        constexpr std::string_view columns = "Columns:";
        if (trimmed(line).empty() || line.starts_with('#')) {
            continue;
        }
        if (palette.colors.empty() && line.starts_with(name)) {
            palette.name = lines.name(line.substr(name.size()));
        } else if (palette.colors.empty() && line.starts_with(columns)) {
            std::string_view rest = line.substr(columns.size());
            auto const number = takeNumber(rest, Palette::mostColumns);
            if (!number || !trimmed(rest).empty()) {
                lines.refuse("expected columns of 0 to 256");
            }
            palette.columns = *number;
        } else {
            palette.colors.push_back(entryOf(line, lines));
        }
    }
    return palette;
}

std::string paletteText(Palette const& palette) {
    std::string text = std::string(signature) + "\nName: " + printable(trimmed(palette.name)) +
                       "\nColumns: " + std::to_string(palette.columns) + "\n#\n";
    for (Palette::Entry const& entry : palette.colors) {
        char numbers[16];
        std::snprintf(numbers, sizeof numbers, "%3d %3d %3d\t", entry.sRGB[0], entry.sRGB[1],
                      entry.sRGB[2]);
        std::string const name = printable(trimmed(entry.name));
        text += numbers + (name.empty() ? std::string(nameless) : name) + '\n';
    }
    return text;
}

} // namespace app
