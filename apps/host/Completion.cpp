#include "host/Completion.h"

#include "host/CommandTable.h"
#include "host/argumentGrammar.h"
#include "host/completionWords.h"
#include "zsg/values/pathFromUtf8.h"

#include <QString>

#include <algorithm>
#include <filesystem>
#include <set>
#include <utility>

namespace app {

namespace {

using Words = std::vector<std::string>;

bool isBlank(char c) { return c == ' ' || c == '\t'; }

/// Where the unfinished word of a line begins; an open quote belongs to it.
std::size_t lastWordAt(std::string_view line) {
    std::size_t start = 0;
    bool quoted = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] == '"') {
            quoted = !quoted;
        } else if (quoted && line[i] == '\\') {
            ++i;
        } else if (!quoted && isBlank(line[i])) {
            start = i + 1;
        }
    }
    return std::min(start, line.size());
}

/// The unfinished word as it is meant.
std::string meaningOf(std::string typed) {
    bool quoted = false;
    for (std::size_t i = 0; i < typed.size(); ++i) {
        if (quoted && typed[i] == '\\') {
            if (++i == typed.size()) {
                typed.pop_back(); // nothing stands behind it yet
            }
        } else if (typed[i] == '"') {
            quoted = !quoted;
        }
    }
    auto const words = splitWords("x " + typed + (quoted ? "\"" : ""));
    return words.size() > 1 ? words[1] : std::string();
}

/// A word as it has to be typed, or the beginning of one.
std::string typed(std::string const& word, bool isWhole) {
    bool const needsQuotes = (word.empty() && isWhole) || word.starts_with('#') ||
                             word.find_first_of(" \t\"\n") != std::string::npos;
    if (!needsQuotes) {
        return word;
    }
    std::string result = "\"";
    for (char const c : word) {
        result += c == '"' || c == '\\' ? std::string{'\\', c}
                  : c == '\n'           ? std::string("\\n")
                                        : std::string(1, c);
    }
    return isWhole ? result + '"' : result;
}

QString folded(std::string const& text) { return QString::fromStdString(text).toCaseFolded(); }

/// What may follow, and whether the word may be longer than that: a folder, "MULTI:".
struct Candidate {
    std::string word;
    bool isOpen = false;
    auto operator<=>(Candidate const&) const = default;
};
using Candidates = std::set<Candidate>;

void addFiles(Candidates& candidates, std::string const& begun) {
    std::size_t const slash = begun.find_last_of('/');
    std::string const folder = slash == std::string::npos ? "" : begun.substr(0, slash + 1);
    bool const showHidden = begun.substr(folder.size()).starts_with('.');
    std::error_code error;
    std::filesystem::directory_iterator entry(zsg::pathFromUtf8(folder.empty() ? "." : folder),
                                              error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        auto const name = entry->path().filename().u8string();
        std::string const text(name.begin(), name.end());
        std::error_code ignored;
        bool const isFolder = entry->is_directory(ignored);
        if ((!text.starts_with('.') || showHidden) &&
            invalidUtf8At(text) == std::string_view::npos) {
            candidates.insert({folder + text + (isFolder ? "/" : ""), isFolder});
        }
    }
}

// "MULTI:SUB" is typed in two halves.
void addPairs(Host& host, Candidates& candidates, Words const& words, std::string const& begun) {
    std::size_t const colon = begun.find(':');
    if (colon == std::string::npos) {
        for (std::string const& multi : wordsFor(host, "MULTI", words)) {
            candidates.insert({multi + ':', true});
        }
        return;
    }
    std::string const multi = begun.substr(0, colon);
    for (std::string const& sub : wordsFor(host, "SUB", {multi})) {
        std::string pair = multi;
        pair.append(1, ':').append(sub);
        candidates.insert({std::move(pair)});
    }
}

std::string joined(Words const& words, std::size_t count) {
    std::string text;
    for (std::size_t i = 0; i < count; ++i) {
        text += (i == 0 ? "" : " ") + words[i];
    }
    return text;
}

Candidates candidatesFor(Host& host, Words const& words, std::string const& begun) {
    Candidates candidates;
    std::string const start = joined(words, words.size()) + (words.empty() ? "" : " ");
    Command const* command = nullptr;
    std::size_t used = 0;
    for (Command const* const row : allCommands()) {
        if (row->name.starts_with(start)) {
            std::string_view const rest = row->name.substr(start.size());
            candidates.insert({std::string(rest.substr(0, rest.find(' ')))});
        }
        auto const count = static_cast<std::size_t>(std::ranges::count(row->name, ' ')) + 1;
        if (count > used && count <= words.size() && joined(words, count) == row->name) {
            command = row;
            used = count;
        }
    }
    if (!command) {
        return candidates;
    }
    Words const arguments(words.begin() + static_cast<std::ptrdiff_t>(used), words.end());
    for (std::string const& allowed : allowedNext(command->arguments, arguments)) {
        if (!isPlaceholder(allowed)) {
            candidates.insert({allowed});
        } else if (allowed == "PATH" || allowed == "PRESET") {
            addFiles(candidates, begun);
        } else if (allowed == "MULTI:SUB") {
            addPairs(host, candidates, words, begun);
        } else {
            for (std::string const& word : wordsFor(host, allowed, words)) {
                candidates.insert({word});
            }
        }
    }
    return candidates;
}

// Whole characters on which all choices agree.
std::string commonStart(Words const& choices) {
    std::string common = choices.front();
    for (std::string const& choice : choices) {
        auto const end = std::ranges::mismatch(common, choice).in1;
        common.erase(end, common.end());
    }
    while (!common.empty() && invalidUtf8At(common) != std::string_view::npos) {
        common.pop_back();
    }
    return common;
}

} // namespace

Completion completionOf(Host& host, std::string_view line) {
    Completion result;
    result.start = lastWordAt(line);
    result.text = line.substr(result.start);
    Words words;
    std::string begun;
    try {
        words = splitWords(std::string(line.substr(0, result.start)) + '.');
        begun = meaningOf(result.text);
    } catch (CommandError const&) { // half of a "\\u202e"
        return result;
    }
    if (words.empty() || !words.back().ends_with('.')) {
        return result; // in a comment
    }
    words.pop_back();
    bool mayGoOn = false;
    for (Candidate const& candidate : candidatesFor(host, words, begun)) {
        if (folded(candidate.word).startsWith(folded(begun))) {
            result.choices.push_back(candidate.word);
            mayGoOn = candidate.isOpen;
        }
    }
    if (result.choices.size() == 1) {
        std::string const& word = result.choices.front();
        result.text = typed(word, !mayGoOn) + (mayGoOn ? "" : " ");
    } else if (!result.choices.empty()) {
        std::string const common = commonStart(result.choices);
        if (common.size() >= begun.size()) {
            result.text = typed(common, false);
        }
    }
    return result;
}

} // namespace app
