#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace app {

/// Why a command could not be carried out; the text is for the person who typed it.
class CommandError : public std::runtime_error {
public:
    /// The code is for programs: a literal, in the words of `failed`, `usage` and the like.
    explicit CommandError(std::string const& text, char const* code = "failed")
        : std::runtime_error(text), code_(code) {}

    [[nodiscard]] char const* code() const { return code_; }

private:
    char const* code_;
};

/// Splits a line into words at blanks. Double quotes keep blanks together; inside them \" \\ \n
/// stand for themselves and a line feed, and \x1b \u202e for the character of that number, which is
/// how printable() shows what a terminal would obey. A # at the start of a word begins a comment,
/// unless it is a colour behind the first word: six or eight hex digits and a blank. Throws
/// CommandError for an open quote.
[[nodiscard]] std::vector<std::string> splitWords(std::string_view line);

/// The byte at which `text` stops being valid UTF-8, or npos.
[[nodiscard]] std::size_t invalidUtf8At(std::string_view text);

/// The words behind a command's name, taken one by one. Every take throws CommandError, naming what
/// was expected, when the word is missing or unreadable.
class Arguments {
public:
    explicit Arguments(std::vector<std::string> words) : words_(std::move(words)) {}

    [[nodiscard]] bool empty() const { return next_ == words_.size(); }
    [[nodiscard]] std::size_t left() const { return words_.size() - next_; }
    [[nodiscard]] std::string const& peek() const { return words_.at(next_); }

    std::string word(char const* expected);
    /// One of the given words.
    std::string oneOf(std::initializer_list<char const*> choices);
    int integer(char const* expected);
    std::uint32_t number(char const* expected);
    double real(char const* expected);
    bool onOff();
    /// True, and the word is taken, when the next word is `flag`.
    bool flag(std::string_view flag);
    /// All remaining words.
    std::vector<std::string> rest();
    /// Throws when anything is left.
    void done() const;

private:
    std::vector<std::string> words_;
    std::size_t next_ = 0;
};

} // namespace app
