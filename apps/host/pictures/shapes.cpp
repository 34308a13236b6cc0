#include "host/pictures/shapes.h"

namespace app::shape {

namespace {

/// Stands on or joins the characters beside it: U+0300 to U+036F, U+200D, U+FE0F.
bool hasNoWidth(std::string_view character) {
    return (character >= "\xCC\x80" && character <= "\xCD\xAF") || character == "\xE2\x80\x8D" ||
           character == "\xEF\xB8\x8F";
}

/// In parts of the size of the font.
double characterWidth(std::string_view character) {
    constexpr std::string_view narrow = "fijlrtI.,:;'|!()[] -\"/";
    constexpr std::string_view wide = "mwMW@%";
    char const first = character.front();
    auto const lead = static_cast<unsigned char>(first);
    if (hasNoWidth(character)) {
        return 0;
    }
    if (lead >= 0xF0) {
        return 1.3; // small pictures
    }
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

std::size_t nextCharacter(std::string_view text, std::size_t begin) {
    std::size_t end = begin + 1;
    while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) {
        ++end;
    }
    return end;
}

} // namespace

double textWidth(std::string_view text, double size, bool bold) {
    double width = 0;
    for (std::size_t begin = 0; begin < text.size();) {
        std::size_t const end = nextCharacter(text, begin);
        width += characterWidth(text.substr(begin, end - begin));
        begin = end;
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
        std::size_t const begin = end;
        end = nextCharacter(text.text, begin);
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
