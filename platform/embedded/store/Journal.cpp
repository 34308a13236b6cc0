#include "nyxembedded/Journal.h"

#include "store/jsonText.h"

#include <charconv>
#include <iterator>
#include <utility>

namespace nyx::embedded {

std::vector<std::string> Journal::take() {
    std::lock_guard const guard(mutex_);
    return std::exchange(lines_, {});
}

void Journal::append(std::string& line, char const* text) {
    if (!text) {
        line += " null";
    } else {
        append(line, std::string(text));
    }
}

void Journal::append(std::string& line, std::string const& text) { appendText(line += ' ', text); }

void Journal::append(std::string& line, float value) {
    char digits[32]; // with a point whatever locale the application has set
    auto const end =
        std::to_chars(std::begin(digits), std::end(digits), value, std::chars_format::general, 6);
    (line += ' ').append(digits, end.ptr);
}

void Journal::push(std::string line) {
    std::lock_guard const guard(mutex_);
    lines_.push_back(std::move(line));
}

} // namespace nyx::embedded
