#include "host/argumentGrammar.h"

#include <algorithm>
#include <cctype>

namespace app {

namespace {

/// A place in a row of arguments: one of its choices stands there.
struct Place {
    std::vector<std::string> choices;
    std::size_t skipTo = 0;   ///< where to go on when it is left out; 0: it cannot be
    std::size_t repeatAt = 0; ///< where it may go on behind it, besides the next place
    bool repeats = false;
};

std::vector<std::string> split(std::string_view text, char at) {
    std::vector<std::string> parts;
    for (std::size_t begin = 0; begin <= text.size();) {
        std::size_t const end = std::min(text.find(at, begin), text.size());
        if (end > begin) {
            parts.emplace_back(text.substr(begin, end - begin));
        }
        begin = end + 1;
    }
    return parts;
}

/// "[X [Y...]]": brackets may be left out, dots repeat the place, or all that the bracket holds.
std::vector<Place> placesOf(std::string_view text) {
    std::vector<Place> places;
    std::vector<std::size_t> open;
    for (std::string token : split(text, ' ')) {
        while (token.starts_with('[')) {
            open.push_back(places.size());
            token.erase(0, 1);
        }
        std::size_t const closed =
            token.size() - std::min(token.find_last_not_of(']') + 1, token.size());
        token.resize(token.size() - closed);
        Place place;
        place.repeatAt = places.size();
        if (token.ends_with("...")) {
            token.resize(token.size() - 3);
            place.repeats = true;
            place.repeatAt = open.empty() ? places.size() : open.back();
        }
        place.choices = split(token, '|');
        places.push_back(place);
        for (std::size_t i = 0; i < closed && !open.empty(); ++i) {
            places[open.back()].skipTo = places.size();
            open.pop_back();
        }
    }
    return places;
}

/// "NAME plain|twill N K|satin N STEP": where a small word follows a placeholder behind a bar, the
/// bar parts whole rows, as " | " does.
std::vector<std::string> rowsOf(std::string_view arguments) {
    std::vector<std::string> rows;
    if (std::size_t const bar = arguments.find(" | "); bar != std::string_view::npos) {
        rows = rowsOf(arguments.substr(0, bar));
        rows.emplace_back(arguments.substr(bar + 3));
        return rows;
    }
    bool isWide = false;
    std::string before;
    std::string rest;
    for (std::string const& token : split(arguments, ' ')) {
        auto const choices = split(token, '|');
        bool const hasBar = choices.size() > 1;
        isWide = isWide || (hasBar && token.front() != '[' && isPlaceholder(choices.front()) &&
                            !isPlaceholder(choices.back()));
        std::string& part = rest.empty() && !hasBar ? before : rest;
        part += token + ' ';
    }
    if (!isWide) {
        return {std::string(arguments)};
    }
    for (std::string const& row : split(rest, '|')) {
        rows.push_back(before + row);
    }
    return rows;
}

bool isNumber(std::string const& word) {
    return !word.empty() && (std::isdigit(static_cast<unsigned char>(word.front())) != 0 ||
                             word.front() == '.' || word.front() == '-');
}

/// How many words a value of a colour takes.
std::size_t lengthOfColor(std::vector<std::string> const& words, std::size_t at) {
    if (words[at].starts_with("rgb")) {
        std::size_t end = at;
        while (end < words.size() && !words[end].ends_with(')')) {
            ++end;
        }
        return end + 1 - at;
    }
    std::size_t count = 0;
    while (count < 4 && at + count < words.size() && isNumber(words[at + count])) {
        ++count;
    }
    return count == 0 ? 1 : std::max<std::size_t>(count, 3);
}

class Matcher {
public:
    Matcher(std::vector<Place> const& places, std::vector<std::string> const& words,
            std::set<std::string>& allowed)
        : places_(places), words_(words), allowed_(allowed) {}

    void match(std::size_t place, std::size_t word) {
        if (place == places_.size() || !seen_.emplace(place, word).second) {
            return;
        }
        Place const& here = places_[place];
        if (here.skipTo != 0) {
            match(here.skipTo, word);
        }
        for (std::string const& choice : here.choices) {
            if (word >= words_.size()) {
                if (word == words_.size()) { // not in the middle of a colour
                    allowed_.insert(choice);
                }
            } else if (isPlaceholder(choice) || choice == words_[word]) {
                std::size_t const next =
                    word + (choice == "RGBA" ? lengthOfColor(words_, word) : 1);
                match(place + 1, next);
                if (here.repeats) {
                    match(here.repeatAt, next);
                }
            }
        }
    }

private:
    std::vector<Place> const& places_;
    std::vector<std::string> const& words_;
    std::set<std::string>& allowed_;
    std::set<std::pair<std::size_t, std::size_t>> seen_;
};

} // namespace

bool isPlaceholder(std::string_view word) {
    return std::ranges::none_of(word,
                                [](unsigned char c) { return std::islower(c) != 0 || c == '='; });
}

std::set<std::string> allowedNext(std::string_view arguments,
                                  std::vector<std::string> const& words) {
    constexpr std::size_t mostWords = 1000; // matching goes as deep
    std::set<std::string> allowed;
    if (words.size() <= mostWords) {
        for (std::string const& row : rowsOf(arguments)) {
            auto const places = placesOf(row);
            Matcher(places, words, allowed).match(0, 0);
        }
    }
    return allowed;
}

} // namespace app
