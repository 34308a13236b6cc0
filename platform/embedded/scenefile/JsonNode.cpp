#include "scenefile/JsonNode.h"

#include "scenefile/StrictJson.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace nyx::embedded {
namespace {

std::string describe(nlohmann::json const& value) {
    switch (value.type()) {
    case nlohmann::json::value_t::null:
        return "null";
    case nlohmann::json::value_t::boolean:
        return "a boolean";
    case nlohmann::json::value_t::string:
        return "a string";
    case nlohmann::json::value_t::array:
        return "an array";
    case nlohmann::json::value_t::object:
        return "an object";
    default:
        return "a number";
    }
}

int hexDigit(char c) {
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    if (c >= 'a' && c <= 'f') {
        return c - 'a' + 10;
    }
    return -1;
}

} // namespace

std::string JsonNode::place() const {
    if (!parent_) {
        return "the file";
    }
    std::string const token = parent_->value_.is_array() ? std::string("/") + std::to_string(index_)
                                                         : pointerToken(std::string(key_));
    return parent_->parent_ ? parent_->place() + token : token;
}

void JsonNode::fail(std::string const& problem) const {
    throw SceneFileError(place() + ": " + problem);
}

void JsonNode::failExpected(std::string const& what) const {
    // A scalar is shown itself: the reader of the message asked for a kind, a range or one of a few
    // texts, and has to see which of them was missed.
    bool const isShown = value_.is_number() || (value_.is_string() && what.front() == '"');
    fail("expected " + what + ", found " +
         (isShown ? abbreviated(value_.dump()) : describe(value_)));
}

void JsonNode::checkIs(bool condition, char const* what) const {
    if (!condition) {
        failExpected(what);
    }
}

void JsonNode::checkObject(std::initializer_list<std::string_view> known) const {
    checkIs(value_.is_object(), "an object");
    for (auto member = value_.begin(); member != value_.end(); ++member) {
        if (std::find(known.begin(), known.end(), member.key()) == known.end()) {
            JsonNode(*member, *this, member.key()).fail("unknown key");
        }
    }
}

std::optional<JsonNode> JsonNode::find(std::string_view key) const {
    auto const found = value_.find(key);
    if (found == value_.end()) {
        return std::nullopt;
    }
    return JsonNode(*found, *this, found.key());
}

JsonNode JsonNode::member(std::string_view key) const {
    auto const found = find(key);
    if (!found) {
        fail("the key \"" + std::string(key) + "\" is missing");
    }
    return *found;
}

std::size_t JsonNode::arraySize() const {
    checkIs(value_.is_array(), "an array");
    return value_.size();
}

std::uint32_t JsonNode::word(std::uint32_t low, std::uint32_t high) const {
    // Negative numbers are stored apart, and large ones and fractions as floating point.
    if (value_.is_number_unsigned()) {
        auto const number = value_.get<std::uint64_t>();
        if (number >= low && number <= high) {
            return static_cast<std::uint32_t>(number);
        }
    }
    failExpected("a whole number from " + std::to_string(low) + " to " + std::to_string(high));
}

bool JsonNode::boolean() const {
    checkIs(value_.is_boolean(), "true or false");
    return value_.get<bool>();
}

double JsonNode::number() const {
    checkIs(value_.is_number(), "a number");
    return value_.get<double>();
}

float JsonNode::component() const {
    if (value_.is_string()) {
        auto const& text = value_.get_ref<std::string const&>();
        constexpr float infinity = std::numeric_limits<float>::infinity();
        if (text == "nan" || text == "-nan") {
            return std::copysign(std::numeric_limits<float>::quiet_NaN(),
                                 text == "nan" ? 1.0f : -1.0f);
        }
        if (text == "inf" || text == "-inf") {
            return text == "inf" ? infinity : -infinity;
        }
    }
    double const value = number();
    if (std::abs(value) > static_cast<double>(std::numeric_limits<float>::max())) {
        failExpected("a number within the range of a 32-bit float");
    }
    return static_cast<float>(value);
}

std::string const& JsonNode::string() const {
    checkIs(value_.is_string(), "a string");
    return value_.get_ref<std::string const&>();
}

/// Texts go through the renderer's zero-terminated ones, where the rest would be lost.
void JsonNode::checkNoZero(std::string const& bytes) const {
    if (bytes.find('\0') != std::string::npos) {
        fail("a text cannot contain a zero byte");
    }
}

std::string JsonNode::text() const {
    if (!value_.is_object()) {
        std::string const& bytes = string();
        checkNoZero(bytes);
        return bytes;
    }
    checkObject({"hex"});
    JsonNode const hex = member("hex");
    std::string const& digits = hex.string();
    std::string bytes;
    for (std::size_t i = 0; i < digits.size(); i += 2) {
        int const high = hexDigit(digits[i]);
        int const low = i + 1 < digits.size() ? hexDigit(digits[i + 1]) : -1;
        if (high < 0 || low < 0) {
            hex.fail("expected pairs of the digits 0 to 9 and a to f");
        }
        bytes += static_cast<char>(high * 16 + low);
    }
    checkNoZero(bytes);
    return bytes;
}

} // namespace nyx::embedded
