#include "values/IORLines.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace zsg {

namespace {

constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }
constexpr bool isSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
constexpr bool isMark(char c) { return c == ',' || c == ';'; }

/// The leading number of a text, 0 when there is none or no double holds it.
double leadingNumber(std::string_view text) {
    if (text.size() > 1 && text[0] == '+' && text[1] != '-') {
        text.remove_prefix(1);
    }
    double number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

/// A plain decimal number: digits with at most one dot among them.
struct Decimal {
    std::string_view text;
    std::uint64_t digits = 0;
    std::size_t count = 0;    ///< of all digits
    std::size_t fraction = 0; ///< of those behind the dot

    /// Moves `at` behind the number; false when there is none.
    [[nodiscard]] bool read(char const*& at, char const* end) {
        char const* const first = at;
        readDigits(at, end);
        if (at != end && *at == '.') {
            std::size_t const whole = count;
            readDigits(++at, end);
            fraction = count - whole;
        }
        text = {first, static_cast<std::size_t>(at - first)};
        return count > 0;
    }

    [[nodiscard]] double value() const {
        // Both are exact, so the division rounds just as a conversion of the text would.
        constexpr double powers[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                     1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
        return count <= 15 ? static_cast<double>(digits) / powers[fraction] : leadingNumber(text);
    }

private:
    void readDigits(char const*& at, char const* end) {
        char const* const first = at;
        for (; at != end && isDigit(*at); ++at) {
            digits = digits * 10 + static_cast<std::uint64_t>(*at - '0');
        }
        count += static_cast<std::size_t>(at - first);
    }
};

/// One of the regular expressions, as a row of steps:
///   s = \s*   d = \d*   D = \d   . = .?   , = [,;\t]?   ; = [,;\t]   u = [1234]   ( ) = a group
template <std::size_t Groups>
class Pattern {
public:
    using Texts = std::array<std::string_view, Groups>;

    consteval explicit Pattern(std::string_view steps) {
        std::size_t group = 0;
        for (char const step : steps) {
            if (step == '(') {
                begin_[group] = count_;
                continue;
            }
            if (step == ')') {
                end_[group++] = count_;
                continue;
            }
            Set const bit = Set{1} << count_++;
            for (unsigned byte = 0; byte < 256; ++byte) {
                accepting_[byte] |= accepts(step, static_cast<char>(byte)) ? bit : 0;
            }
            repeated_ |= step == 's' || step == 'd' ? bit : 0;
            skippable_[0] |= step == 's' || step == 'd' || step == '.' || step == ',' ? bit : 0;
        }
        for (std::size_t i = 1; i < skippable_.size(); ++i) {
            skippable_[i] = skippable_[i - 1] & (skippable_[i - 1] >> (1u << (i - 1)));
        }
    }

    /// The groups as a backtracking matcher that prefers the longest finds them, without its
    /// exponential time: going backwards, note for every place the steps from which the end can be
    /// reached; going forwards, take the first choice that is among them.
    [[nodiscard]] std::optional<Texts> match(std::string_view line) const {
        std::vector<Set> open(line.size() + 1);
        open[line.size()] = withSkips(Set{1} << count_);
        for (std::size_t i = line.size(); i-- > 0;) {
            Set const taking = accepting_[static_cast<unsigned char>(line[i])];
            Set const next = open[i + 1];
            open[i] = withSkips(taking & ((next & repeated_) | ((next >> 1) & ~repeated_)));
        }
        if ((open[0] & 1) == 0) {
            return {};
        }
        std::array<std::size_t, 33> reached{}; // place at which each step begins
        std::size_t place = 0;
        for (unsigned step = 0; step < count_;) {
            Set const bit = Set{1} << step;
            unsigned const after = (repeated_ & bit) != 0 ? step : step + 1;
            bool const takes = place < line.size() &&
                               (accepting_[static_cast<unsigned char>(line[place])] & bit) != 0 &&
                               (open[place + 1] >> after & 1) != 0;
            place += takes ? 1u : 0u;
            if (!takes || after != step) {
                reached[++step] = place;
            }
        }
        Texts texts;
        for (std::size_t i = 0; i < Groups; ++i) {
            std::size_t const first = reached[begin_[i]];
            texts[i] = line.substr(first, reached[end_[i]] - first);
        }
        return texts;
    }

private:
    using Set = std::uint32_t; ///< of steps; the one after the last stands for the end

    static constexpr bool accepts(char step, char c) {
        switch (step) {
        case 's':
            return isSpace(c);
        case 'd':
        case 'D':
            return isDigit(c);
        case 'u':
            return c >= '1' && c <= '4';
        case '.':
            return c != '\n' && c != '\r';
        default:
            return isMark(c) || c == '\t';
        }
    }

    /// Adds the steps from which a member is reached by skipping.
    [[nodiscard]] Set withSkips(Set set) const {
        for (std::size_t i = 0; i < skippable_.size(); ++i) {
            set |= skippable_[i] & (set >> (1u << i));
        }
        return set;
    }

    unsigned count_ = 0;
    Set repeated_ = 0;
    /// Element i: steps that, with those that follow, are 2^i skippable ones in a row.
    std::array<Set, 4> skippable_{};
    std::array<unsigned, Groups> begin_{};
    std::array<unsigned, Groups> end_{};
    std::array<Set, 256> accepting_{};
};

constexpr Pattern<4> headerPattern("s(u)s,s(d.Dd)s,s(d.Dd)s,s(Dd)s");
constexpr Pattern<2> pairPattern("s(d.d)s,s(d.d)s");
constexpr Pattern<3> columnsPattern("s(d.d)s;s(d.d)s;s(d.d)");

/// White space, commas and semicolons around the numbers of a line.
struct Gap {
    std::size_t length = 0;
    std::size_t marks = 0; ///< commas and semicolons
    bool tab = false;

    void read(char const*& at, char const* end) {
        char const* const first = at;
        for (; at != end && (isSpace(*at) || isMark(*at)); ++at) {
            marks += isMark(*at) ? 1u : 0u;
            tab = tab || *at == '\t';
        }
        length = static_cast<std::size_t>(at - first);
    }
    [[nodiscard]] bool isSeparator() const { return marks == 1 || (marks == 0 && tab); }
};

/// A line of exactly `Count` plain decimal numbers.
template <std::size_t Count>
struct Split {
    std::array<Decimal, Count> numbers;
    std::array<bool, Count> negative{};
    std::array<Gap, Count + 1> gaps; ///< before the first number, between them, after the last one

    [[nodiscard]] bool read(std::string_view line, bool withSign = false) {
        char const* at = line.data();
        char const* const end = at + line.size();
        gaps[0].read(at, end);
        for (std::size_t i = 0; i < Count; ++i) {
            if (withSign && at != end && *at == '-') {
                negative[i] = true;
                ++at;
            }
            if (!numbers[i].read(at, end)) {
                return false;
            }
            gaps[i + 1].read(at, end);
            if (gaps[i + 1].length == 0 && i + 1 < Count) {
                return false;
            }
        }
        return at == end;
    }

    [[nodiscard]] std::array<double, Count> values() const {
        std::array<double, Count> values;
        for (std::size_t i = 0; i < Count; ++i) {
            values[i] = negative[i] ? -numbers[i].value() : numbers[i].value();
        }
        return values;
    }
};

/// The numbers of an accepted line. `surely` tells that the pattern accepts a line that was split,
/// so that ordinary lines need no matching.
template <std::size_t Count, class Surely>
std::optional<std::array<double, Count>> numbersOf(std::string_view line,
                                                   Pattern<Count> const& pattern, Surely surely) {
    Split<Count> split;
    bool const isSplit = split.read(line);
    if (isSplit && surely(split)) {
        return split.values();
    }
    auto const groups = pattern.match(line);
    if (!groups) {
        return {};
    }
    if (isSplit) {
        return split.values();
    }
    std::array<double, Count> values;
    std::transform(groups->begin(), groups->end(), values.begin(), leadingNumber);
    return values;
}

/// Only absurd files have units and counts of intervals that do not fit; these read as 0.
std::int64_t wholeNumber(double value) {
    return value < 0x1p63 ? static_cast<std::int64_t>(value) : 0;
}

} // namespace

std::optional<IORHeader> readIORHeader(std::string_view line) {
    auto const numbers = numbersOf(line, headerPattern, [](Split<4> const& split) {
        auto const& [unit, start, end, intervals] = split.numbers;
        auto const& gaps = split.gaps;
        return unit.text.size() == 1 && unit.digits >= 1 && unit.digits <= 4 &&
               start.text.back() != '.' && end.text.back() != '.' &&
               intervals.text.size() == intervals.count && gaps[0].marks == 0 &&
               gaps[1].marks <= 1 && gaps[2].marks <= 1 && gaps[3].marks <= 1 && gaps[4].marks == 0;
    });
    if (!numbers) {
        return {};
    }
    auto const& [unit, start, end, intervals] = *numbers;
    return IORHeader{wholeNumber(unit), start, end, wholeNumber(intervals)};
}

std::optional<IORPair> readIORPair(std::string_view line) {
    auto const numbers = numbersOf(line, pairPattern, [](Split<2> const& split) {
        return split.gaps[0].marks == 0 && split.gaps[1].marks <= 1 && split.gaps[2].marks == 0;
    });
    if (!numbers) {
        return {};
    }
    return IORPair{(*numbers)[0], (*numbers)[1]};
}

std::optional<IORColumns> readIORColumns(std::string_view line) {
    auto const numbers = numbersOf(line, columnsPattern, [](Split<3> const& split) {
        return split.gaps[0].marks == 0 && split.gaps[1].isSeparator() &&
               split.gaps[2].isSeparator() && split.gaps[3].length == 0;
    });
    if (numbers) {
        return IORColumns{(*numbers)[0], (*numbers)[1], (*numbers)[2]};
    }
    // The dot lets "-1" pass, but not "-0.1", which would go unmentioned.
    if (Split<3> split; split.read(line, true) && split.gaps[0].marks == 0 &&
                        split.gaps[1].isSeparator() && split.gaps[2].isSeparator() &&
                        split.gaps[3].marks == 0) {
        auto const [wavelength, n, k] = split.values();
        if (n < 0 || k < 0) {
            return IORColumns{wavelength, n, k};
        }
    }
    return {};
}

} // namespace zsg
