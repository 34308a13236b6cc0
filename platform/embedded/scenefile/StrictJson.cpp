#include "scenefile/StrictJson.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace nyx::embedded {
namespace {

using Json = nlohmann::json;

constexpr std::size_t maxDepth = 32;

/// Where the parser stood after reading `bytesRead` bytes. It reads one byte beyond the end to see
/// that there is none.
std::string lineAndColumn(std::string const& text, std::size_t bytesRead) {
    auto const offset = std::min(bytesRead - std::min<std::size_t>(bytesRead, 1), text.size());
    auto const begin = text.begin();
    auto const here = begin + static_cast<std::ptrdiff_t>(offset);
    auto const line = std::count(begin, here, '\n') + 1;
    auto const lineBreak = offset == 0 ? std::string::npos : text.rfind('\n', offset - 1);
    auto const column = lineBreak == std::string::npos ? offset + 1 : offset - lineBreak;
    return "line " + std::to_string(line) + ", column " + std::to_string(column);
}

/// The parser's own words without its prefix and without the token it read last: that may be the
/// rest of the file, and need not be valid UTF-8.
std::string reason(Json::exception const& error) {
    if (dynamic_cast<Json::out_of_range const*>(&error)) {
        return "number out of range";
    }
    std::string text = error.what();
    if (auto const column = text.find("column "); column != std::string::npos) {
        if (auto const colon = text.find(": ", column); colon != std::string::npos) {
            text.erase(0, colon + 2);
        }
    }
    if (auto const token = text.find("; last read: '"); token != std::string::npos) {
        auto const tail = text.rfind("'; expected ");
        if (tail != std::string::npos && tail > token) {
            text.erase(token, tail + 1 - token);
        } else {
            text.erase(token);
        }
    }
    return text;
}

class StrictBuilder final : public nlohmann::json_sax<Json> {
public:
    explicit StrictBuilder(std::string const& text) : text_(text) {}

    Json takeResult() { return std::move(root_); }

    bool null() override { return add(nullptr); }
    bool boolean(bool value) override { return add(value); }
    bool number_integer(number_integer_t value) override { return add(value); }
    bool number_unsigned(number_unsigned_t value) override { return add(value); }
    bool number_float(number_float_t value, string_t const&) override { return add(value); }
    bool string(string_t& value) override { return add(std::move(value)); }
    bool binary(binary_t& value) override { return add(std::move(value)); }

    bool start_object(std::size_t) override { return open(Json::object()); }
    bool end_object() override { return close(); }
    bool start_array(std::size_t) override { return open(Json::array()); }
    bool end_array() override { return close(); }

    bool key(string_t& key) override {
        Level& level = levels_.back();
        auto const [member, isNew] = level.container->emplace(key, nullptr);
        level.key = std::move(key);
        if (!isNew) {
            throw SceneFileError(pointer() + ": the key appears twice");
        }
        level.member = &*member;
        return true;
    }

    bool parse_error(std::size_t position, std::string const&,
                     nlohmann::detail::exception const& error) override {
        throw SceneFileError(lineAndColumn(text_, position) + ": " + reason(error));
    }

private:
    struct Level {
        Json* container;
        Json* member = nullptr; // of an object: where the next value goes
        std::string key;
    };

    Json* place(Json&& value) {
        if (levels_.empty()) {
            root_ = std::move(value);
            return &root_;
        }
        Level& level = levels_.back();
        if (level.container->is_array()) {
            return &level.container->emplace_back(std::move(value));
        }
        *level.member = std::move(value);
        return level.member;
    }

    bool add(Json value) {
        place(std::move(value));
        return true;
    }

    bool open(Json container) {
        Json* const placed = place(std::move(container));
        if (levels_.size() == maxDepth) {
            throw SceneFileError(pointer() + ": nested deeper than " + std::to_string(maxDepth));
        }
        levels_.push_back({placed, nullptr, {}});
        return true;
    }

    bool close() {
        levels_.pop_back();
        return true;
    }

    std::string pointer() const {
        std::string result;
        for (Level const& level : levels_) {
            result += level.container->is_array()
                          ? "/" + std::to_string(level.container->size() - 1)
                          : pointerToken(level.key);
        }
        return result;
    }

    std::string const& text_;
    Json root_;
    std::vector<Level> levels_; // the containers that are open, outermost first
};

} // namespace

std::string abbreviated(std::string text) {
    constexpr std::size_t limit = 60;
    if (text.size() > limit) {
        auto const isContinuation = [](char c) {
            return (static_cast<unsigned char>(c) & 0xC0u) == 0x80u;
        };
        std::size_t end = limit;
        while (end > 0 && isContinuation(text[end])) {
            --end;
        }
        text.resize(end);
        text += "...";
    }
    return text;
}

std::string pointerToken(std::string const& key) {
    std::string token = "/";
    for (char const c : abbreviated(key)) {
        if (c == '~') {
            token += "~0";
        } else if (c == '/') {
            token += "~1";
        } else {
            token += c;
        }
    }
    return token;
}

Json parseStrictly(std::string const& text) {
    if (auto const zero = text.find('\0'); zero != std::string::npos) { // the parser ends there
        throw SceneFileError(lineAndColumn(text, zero + 1) + ": a zero byte");
    }
    StrictBuilder builder(text);
    Json::sax_parse(text, &builder);
    return builder.takeResult();
}

} // namespace nyx::embedded
