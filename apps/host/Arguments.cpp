#include "host/Arguments.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace app {

namespace {

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r'; }

template <class T>
T parse(std::string const& word, char const* expected) {
    T value{};
    auto const [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    if (error != std::errc() || end != word.data() + word.size()) {
        throw CommandError("expected " + std::string(expected) + ", found \"" + word + "\"",
                           "usage");
    }
    return value;
}

/// "#", six or eight hex digits, and the end of the word.
bool isHexColor(std::string_view text) {
    std::size_t const digits =
        std::min(text.find_first_not_of("0123456789abcdefABCDEF", 1), text.size()) - 1;
    std::size_t const end = digits + 1;
    return (digits == 6 || digits == 8) && (end == text.size() || isBlank(text[end]));
}

// What stands behind a backslash at `i`, which goes behind it.
void takeEscaped(std::string_view line, std::size_t& i, std::string& word) {
    char const letter = line[i++];
    std::size_t const digits = letter == 'x' ? 2 : letter == 'u' ? 4 : 0;
    unsigned number = 0;
    if (digits == 0) {
        word += letter == 'n' ? '\n' : letter;
        return;
    }
    char const* const begin = line.data() + i;
    auto const [end, error] =
        std::from_chars(begin, begin + std::min(digits, line.size() - i), number, 16);
    bool const isSurrogate = number >= 0xD800 && number <= 0xDFFF;
    if (error != std::errc() || end != begin + digits || isSurrogate) {
        throw CommandError(std::string("expected ") + (digits == 2 ? "two" : "four") +
                               " hex digits of a character behind \\" + letter +
                               "; a backslash itself is \\\\",
                           "usage");
    }
    i += digits;
    if (number >= 0x800) {
        word += static_cast<char>(0xE0 | number >> 12);
        word += static_cast<char>(0x80 | (number >> 6 & 0x3F));
        word += static_cast<char>(0x80 | (number & 0x3F));
    } else if (number >= 0x80) {
        word += static_cast<char>(0xC0 | number >> 6);
        word += static_cast<char>(0x80 | (number & 0x3F));
    } else {
        word += static_cast<char>(number);
    }
}

} // namespace

std::vector<std::string> splitWords(std::string_view line) {
    std::vector<std::string> words;
    std::size_t i = 0;
    while (true) {
        while (i < line.size() && isBlank(line[i])) {
            ++i;
        }
        if (i == line.size() ||
            (line[i] == '#' && (words.empty() || !isHexColor(line.substr(i))))) {
            return words;
        }
        std::string word;
        while (i < line.size() && !isBlank(line[i])) {
            if (line[i] != '"') {
                word += line[i++];
                continue;
            }
            ++i;
            while (i < line.size() && line[i] != '"') {
                if (line[i] == '\\' && i + 1 < line.size()) {
                    ++i;
                    takeEscaped(line, i, word);
                } else {
                    word += line[i++];
                }
            }
            if (i == line.size()) {
                throw CommandError("a double quote is not closed", "usage");
            }
            ++i;
        }
        words.push_back(std::move(word));
    }
}

std::size_t invalidUtf8At(std::string_view text) {
    for (std::size_t i = 0; i < text.size();) {
        auto const byte = [&](std::size_t at) -> unsigned {
            return at < text.size() ? static_cast<unsigned char>(text[at]) : 0u;
        };
        unsigned const first = byte(i);
        std::size_t length = 1;
        unsigned lowest = 0x80;
        unsigned highest = 0xBF;
        if (first >= 0x80) {
            if (first < 0xC2 || first > 0xF4) {
                return i;
            }
            length = first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
            // Overlong forms, surrogates and code points past the last one.
            lowest = first == 0xE0 ? 0xA0 : first == 0xF0 ? 0x90 : 0x80;
            highest = first == 0xED ? 0x9F : first == 0xF4 ? 0x8F : 0xBF;
        }
        for (std::size_t k = 1; k < length; ++k) {
            if (byte(i + k) < lowest || byte(i + k) > highest) {
                return i;
            }
            lowest = 0x80;
            highest = 0xBF;
        }
        i += length;
    }
    return std::string_view::npos;
}

std::string Arguments::word(char const* expected) {
    if (empty()) {
        throw CommandError("expected " + std::string(expected), "usage");
    }
    return words_[next_++];
}

std::string Arguments::oneOf(std::initializer_list<char const*> choices) {
    std::string list;
    for (char const* choice : choices) {
        list += (list.empty() ? "" : ", ") + std::string(choice);
    }
    std::string const expected = "one of " + list;
    std::string found = word(expected.c_str());
    for (char const* choice : choices) {
        if (found == choice) {
            return found;
        }
    }
    throw CommandError("expected " + expected + ", found \"" + found + "\"", "usage");
}

int Arguments::integer(char const* expected) { return parse<int>(word(expected), expected); }

std::uint32_t Arguments::number(char const* expected) {
    return parse<std::uint32_t>(word(expected), expected);
}

double Arguments::real(char const* expected) { return parse<double>(word(expected), expected); }

bool Arguments::onOff() { return oneOf({"on", "off"}) == "on"; }

bool Arguments::flag(std::string_view flag) {
    if (empty() || peek() != flag) {
        return false;
    }
    ++next_;
    return true;
}

std::vector<std::string> Arguments::rest() {
    std::vector<std::string> words(words_.begin() + static_cast<std::ptrdiff_t>(next_),
                                   words_.end());
    next_ = words_.size();
    return words;
}

void Arguments::done() const {
    if (!empty()) {
        throw CommandError("unexpected \"" + peek() + "\"", "usage");
    }
}

} // namespace app
