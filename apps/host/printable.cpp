#include "host/printable.h"

#include "host/Arguments.h"

#include <cstdio>

namespace app {

namespace {

struct Character {
    unsigned codePoint = 0;
    std::size_t bytes = 1;
};

/// The first character of text that is UTF-8 at its start.
Character decode(std::string_view text) {
    auto const byte = [&](std::size_t at) {
        return static_cast<unsigned>(static_cast<unsigned char>(text[at]));
    };
    unsigned const first = byte(0);
    if (first < 0x80) {
        return {first, 1};
    }
    std::size_t const bytes = first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    unsigned codePoint = first & (0x7Fu >> bytes);
    for (std::size_t i = 1; i < bytes; ++i) {
        codePoint = codePoint << 6 | (byte(i) & 0x3Fu);
    }
    return {codePoint, bytes};
}

bool isObeyed(unsigned c) {
    return c < 0x20 || (c >= 0x7F && c <= 0x9F) || // C0, DEL and C1 controls
           c == 0x2028 || c == 0x2029 ||           // line and paragraph separator
           (c >= 0x202A && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069); // directions of writing
}

std::string escape(unsigned c) {
    if (c == '\n') {
        return "\\n";
    }
    char text[16];
    std::snprintf(text, sizeof text, c < 0x100 ? "\\x%02x" : "\\u%04x", c);
    return text;
}

std::string shown(std::string_view text, std::string_view kept) {
    std::string result;
    result.reserve(text.size());
    std::size_t valid = invalidUtf8At(text);
    for (std::size_t i = 0; i < text.size();) {
        if (i == valid) {
            result += escape(static_cast<unsigned char>(text[i]));
            ++i;
            std::size_t const next = invalidUtf8At(text.substr(i));
            valid = next == std::string_view::npos ? next : i + next;
            continue;
        }
        auto const [codePoint, bytes] = decode(text.substr(i));
        if (isObeyed(codePoint) && kept.find(text[i]) == std::string_view::npos) {
            result += escape(codePoint);
        } else {
            result += text.substr(i, bytes);
        }
        i += bytes;
    }
    return result;
}

} // namespace

std::string printable(std::string_view text, std::size_t longest) {
    if (text.size() <= longest) {
        return shown(text, {});
    }
    std::string cut(text.substr(0, longest));
    // Not in the middle of a character, which has three more bytes at most.
    for (int i = 0; i < 3 && invalidUtf8At(cut) != std::string::npos; ++i) {
        cut.pop_back();
    }
    return shown(cut, {}) + "...";
}

std::string printableLines(std::string_view text) { return shown(text, "\n\t"); }

} // namespace app
