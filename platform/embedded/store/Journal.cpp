#include "nyxembedded/Journal.h"

#include "store/jsonText.h"

#include <cstdio>

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
    char digits[32];
    std::snprintf(digits, sizeof digits, " %.6g", static_cast<double>(value));
    line += digits;
}

void Journal::push(std::string line) {
    std::lock_guard const guard(mutex_);
    lines_.push_back(std::move(line));
}

} // namespace nyx::embedded
