#pragma once

#include <nlohmann/json.hpp>

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace nyx::embedded {

/// A value of a scene file that knows where it stands, so that what is wrong with it can be said.
/// Nodes live on the stack of the reader: a node refers to its parent and to the parsed document.
/// Everything here throws SceneFileError where the value is not what was asked for.
class JsonNode {
public:
    explicit JsonNode(nlohmann::json const& document) : value_(document) {}

    /// The JSON pointer; "the file" for the document itself.
    [[nodiscard]] std::string place() const;
    [[noreturn]] void fail(std::string const& problem) const;
    /// "expected <what>, found <what the value is>".
    [[noreturn]] void failExpected(std::string const& what) const;
    void checkNoZero(std::string const& bytes) const;

    // Objects.

    /// Checks that this is an object with no other keys than `known`.
    void checkObject(std::initializer_list<std::string_view> known) const;
    [[nodiscard]] std::optional<JsonNode> find(std::string_view key) const;
    [[nodiscard]] JsonNode member(std::string_view key) const;

    // Arrays.

    [[nodiscard]] std::size_t arraySize() const;
    template <class Visit>
    void forEachElement(Visit const& visit) const {
        std::size_t const size = arraySize();
        for (std::size_t i = 0; i < size; ++i) {
            visit(element(i));
        }
    }
    [[nodiscard]] JsonNode element(std::size_t index) const {
        return JsonNode(value_[index], *this, index);
    }

    // Values.

    /// A whole number from `low` to `high`.
    [[nodiscard]] std::uint32_t word(std::uint32_t low = 0, std::uint32_t high = 0xFFFFFFFFu) const;
    [[nodiscard]] double number() const;
    /// True or false.
    [[nodiscard]] bool boolean() const;
    /// A number within the range of float, or one of the texts "nan", "inf", "-inf".
    [[nodiscard]] float component() const;
    /// A string, or an object {"hex": "..."} with the bytes of a text that is no valid UTF-8.
    [[nodiscard]] std::string text() const;
    /// A string.
    [[nodiscard]] std::string const& string() const;

private:
    JsonNode(nlohmann::json const& value, JsonNode const& parent, std::string_view key)
        : value_(value), parent_(&parent), key_(key) {}
    JsonNode(nlohmann::json const& value, JsonNode const& parent, std::size_t index)
        : value_(value), parent_(&parent), index_(index) {}

    void checkIs(bool condition, char const* what) const;

    nlohmann::json const& value_;
    JsonNode const* parent_ = nullptr;
    std::string_view key_;  // in an object
    std::size_t index_ = 0; // in an array
};

} // namespace nyx::embedded
