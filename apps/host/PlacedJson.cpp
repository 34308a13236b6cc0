#include "host/PlacedJson.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace app {

namespace {

constexpr std::size_t deepest = 1024;

struct Lines {
    int line = 1;
    int before = 1; ///< before the character read last
};

/// Counts the lines that the parser has read.
class Reader {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = char const*;
    using reference = char const&;

    Reader(char const* at, Lines& lines) : at_(at), lines_(&lines) {}

    reference operator*() const { return *at_; }
    Reader& operator++() {
        lines_->before = lines_->line;
        lines_->line += *at_ == '\n' ? 1 : 0;
        ++at_;
        return *this;
    }
    bool operator==(Reader const& other) const { return at_ == other.at_; }
    bool operator!=(Reader const& other) const { return at_ != other.at_; }

private:
    char const* at_;
    Lines* lines_;
};

class Builder final : public nlohmann::json_sax<nlohmann::json> {
public:
    using Kind = PlacedJson::Kind;

    Builder(Lines const& lines, PlacedJson& root) : lines_(lines), root_(root) {}

    bool null() override { return add(Kind::Null) != nullptr; }
    bool boolean(bool) override { return add(Kind::Boolean) != nullptr; }
    bool number_integer(number_integer_t value) override {
        return addNumber(static_cast<double>(value));
    }
    bool number_unsigned(number_unsigned_t value) override {
        return addNumber(static_cast<double>(value));
    }
    bool number_float(number_float_t value, string_t const&) override { return addNumber(value); }
    bool string(string_t& value) override {
        add(Kind::String)->text = std::move(value);
        return true;
    }
    bool binary(binary_t&) override { return false; } // JSON text has none
    bool start_object(std::size_t) override { return open(Kind::Object); }
    bool key(string_t& key) override {
        open_.back()->keys.push_back({std::move(key), PlacedJson()});
        return true;
    }
    bool end_object() override { return close(); }
    bool start_array(std::size_t) override { return open(Kind::Array); }
    bool end_array() override { return close(); }
    bool parse_error(std::size_t, std::string const&, nlohmann::detail::exception const&) override {
        return false;
    }

private:
    PlacedJson* add(Kind kind) {
        PlacedJson* place = &root_;
        if (!open_.empty()) {
            PlacedJson& parent = *open_.back();
            place = parent.kind == Kind::Object ? &parent.keys.back().value
                                                : &parent.elements.emplace_back();
        }
        place->kind = kind;
        place->line = lines_.line;
        return place;
    }

    bool addNumber(double value) {
        PlacedJson* const place = add(Kind::Number);
        place->number = value;
        place->line = lines_.before; // a number ends where something else is read
        return true;
    }

    bool open(Kind kind) {
        open_.push_back(add(kind));
        return open_.size() <= deepest;
    }

    bool close() {
        open_.pop_back();
        return true;
    }

    Lines const& lines_;
    PlacedJson& root_;
    std::vector<PlacedJson*> open_; // a container does not move while something is put into it
};

} // namespace

PlacedJson const* PlacedJson::find(std::string_view key) const {
    auto const found =
        std::find_if(keys.rbegin(), keys.rend(), [key](auto const& k) { return k.name == key; });
    return found == keys.rend() ? nullptr : &found->value;
}

PlacedJson readPlacedJson(std::string_view text, int firstLine, int& failedLine) {
    PlacedJson root;
    Lines lines{firstLine, firstLine};
    Builder builder(lines, root);
    char const* const end = text.data() + text.size();
    bool const read =
        nlohmann::json::sax_parse(Reader(text.data(), lines), Reader(end, lines), &builder);
    failedLine = read ? 0 : lines.before;
    return root;
}

std::string pointerToken(std::string_view key) {
    std::string token;
    for (char const c : key) {
        token += c == '~' ? "~0" : c == '/' ? "~1" : std::string(1, c);
    }
    return token;
}

} // namespace app
