#include "host/IORLint.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <set>
#include <sstream>

namespace app {

namespace {

bool blank(std::string const& line) {
    return line.find_first_not_of(" \t\r\v\f") == std::string::npos;
}

bool startsWithNumber(std::string const& line) {
    std::size_t const at = line.find_first_not_of(" \t");
    return at != std::string::npos &&
           (std::isdigit(static_cast<unsigned char>(line[at])) != 0 || line[at] == '.');
}

/// With a point whatever locale the application has set; 0 when there is none.
double leadingNumber(std::string const& line) {
    std::size_t const at = std::min(line.find_first_not_of(" \t"), line.size());
    double number = 0;
    std::from_chars(line.data() + at, line.data() + line.size(), number);
    return number;
}

/// What a header consists of; lines before it may start with a number, say a year.
bool looksLikeHeader(std::string const& line) {
    std::size_t const at = line.find_first_not_of(" \t");
    return at != std::string::npos && line[at] >= '1' && line[at] <= '4' &&
           line.find_first_not_of("0123456789.,; \t") == std::string::npos;
}

/// A digit, then e, then a digit or a sign.
bool scientific(std::string const& line) {
    for (std::size_t i = 1; i + 1 < line.size(); ++i) {
        auto const digit = [&](std::size_t at) {
            return std::isdigit(static_cast<unsigned char>(line[at])) != 0;
        };
        if ((line[i] == 'e' || line[i] == 'E') && (digit(i - 1) || line[i - 1] == '.') &&
            (digit(i + 1) || line[i + 1] == '-' || line[i + 1] == '+')) {
            return true;
        }
    }
    return false;
}

} // namespace

std::vector<std::string> lintIOR(std::string const& text, std::string const& extension) {
    std::vector<std::string> findings;
    std::set<std::string> said;
    int number = 0;
    auto const say = [&](std::string const& what) {
        if (said.insert(what).second) {
            findings.push_back("line " + std::to_string(number) + ": " + what);
        }
    };
    bool const pairs = extension != "csv";
    bool pastHeader = false;
    int rows = 0;
    double largest = 0;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        ++number;
        if (number == 1 && line.starts_with("\xEF\xBB\xBF")) {
            say("begins with a byte order mark, and is not read");
        }
        if (line.ends_with('\r')) {
            line.pop_back();
        }
        if (pairs && pastHeader && blank(line)) {
            say("is blank, and counts as a sample with n = 0 and k = 0");
        }
        if (scientific(line)) {
            say("has a number in scientific notation; most such lines are skipped");
        }
        std::size_t const last = line.find_last_not_of(" \t");
        if (last != std::string::npos && line[last] == ';') {
            say("ends in a semicolon; such lines are read differently or skipped");
        }
        if (!pairs && line.size() >= 100) {
            say("has 100 characters or more; reading ends here");
        }
        pastHeader = pastHeader || looksLikeHeader(line);
        if (startsWithNumber(line)) {
            ++rows;
            largest = std::max(largest, leadingNumber(line));
        }
    }
    number = 1;
    if (!pairs && rows > 0 && largest < 100) {
        say("the wavelengths look like micrometres; they are taken as nanometres");
    }
    return findings;
}

} // namespace app
