#include "host/pictures/shapes.h"

namespace app::shape {

namespace {

bool beginsCharacter(char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }

/// In parts of the size of the font.
double characterWidth(char first) {
    constexpr std::string_view narrow = "fijlrtI.,:;'|!()[] -\"/";
    constexpr std::string_view wide = "mwMW@%";
    auto const lead = static_cast<unsigned char>(first);
    if (lead >= 0xE3) {
        return 1.05; // most of what is written in squares
    }
    if (wide.find(first) != wide.npos) {
        return 0.98;
    }
    if (narrow.find(first) != narrow.npos) {
        return 0.4;
    }
    return first >= 'A' && first <= 'Z' ? 0.72 : 0.63;
}

} // namespace

double textWidth(std::string_view text, double size, bool bold) {
    double width = 0;
    for (char const c : text) {
        width += beginsCharacter(c) ? characterWidth(c) : 0;
    }
    return width * size * (bold ? 1.12 : 1);
}

Text fitted(Text text, double widest) {
    if (textWidth(text.text, text.size, text.bold) <= widest) {
        return text;
    }
    double const room = widest - text.size; // the ellipsis
    std::size_t kept = 0;
    double width = 0;
    for (std::size_t end = 0; end < text.text.size();) {
        std::size_t const begin = end++;
        while (end < text.text.size() && !beginsCharacter(text.text[end])) {
            ++end;
        }
        width += textWidth({text.text.data() + begin, end - begin}, text.size, text.bold);
        if (width > room) {
            break;
        }
        kept = end;
    }
    text.whole = text.text;
    text.text.resize(kept);
    text.text += "\xE2\x80\xA6";
    return text;
}

} // namespace app::shape
