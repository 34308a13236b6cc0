#include "store/jsonText.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace nyx::embedded {
namespace {

bool isPlain(std::string const& text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return c >= ' ' && c <= '~' && c != '"' && c != '\\'; });
}

template <class Number>
void appendShortest(std::string& out, Number value) {
    std::array<char, 32> digits{};
    auto const end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    out.append(digits.data(), end);
}

} // namespace

void appendText(std::string& out, std::string const& text) {
    if (isPlain(text)) {
        out.append(1, '"').append(text).append(1, '"');
        return;
    }
    try {
        out += nlohmann::json(text).dump();
    } catch (nlohmann::json::type_error const&) {
        constexpr char const* digits = "0123456789abcdef";
        out += "{\"hex\": \"";
        for (char const c : text) {
            auto const byte = static_cast<unsigned char>(c);
            out.append(1, digits[byte >> 4]).append(1, digits[byte & 0xF]);
        }
        out += "\"}";
    }
}

void appendFloat(std::string& out, float value) {
    if (std::isnan(value)) {
        out += std::signbit(value) ? "\"-nan\"" : "\"nan\"";
        return;
    }
    if (std::isinf(value)) {
        out += value > 0 ? "\"inf\"" : "\"-inf\"";
        return;
    }
    // Readers of JSON go through double. A few floats have a shortest form that does not survive
    // the second rounding (7.038531e-26 is one); they are written with the digits of the double.
    std::array<char, 32> digits{};
    auto const end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    double wide = 0;
    std::from_chars(digits.data(), end, wide);
    if (std::abs(wide) <= static_cast<double>(std::numeric_limits<float>::max()) &&
        static_cast<float>(wide) == value && !(value == 0 && std::signbit(value))) {
        out.append(digits.data(), end);
    } else {
        appendDouble(out, static_cast<double>(value));
    }
}

void appendDouble(std::string& out, double value) {
    // "-0" would be read as the whole number 0.
    if (value == 0 && std::signbit(value)) {
        out += "-0.0";
    } else {
        appendShortest(out, value);
    }
}

} // namespace nyx::embedded
