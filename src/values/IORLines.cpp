#include "values/IORLines.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <vector>

namespace zsg {

namespace {

constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }
constexpr bool isSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
constexpr bool isMark(char c) { return c == ',' || c == ';'; }

/// The leading number of a text, 0 when there is none or no Number holds it.
template <class Number>
Number leadingNumber(std::string_view text) {
    if (text.size() > 1 && text[0] == '+' && text[1] != '-') {
        text.remove_prefix(1);
    }
    Number number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

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

/// A line of exactly `Count` plain decimal numbers.
template <std::size_t Count>
struct Split {
    std::array<std::string_view, Count> numbers;
    /// Before the first number, between them, after the last one.
    struct Gap {
        std::size_t length = 0;
        std::size_t marks = 0; ///< commas and semicolons
        bool tab = false;
    };
    std::array<Gap, Count + 1> gaps;

    [[nodiscard]] bool read(std::string_view line, bool withSign = false) {
        char const* at = line.data();
        char const* const end = at + line.size();
        skipGap(at, end, gaps[0]);
        for (std::size_t i = 0; i < Count; ++i) {
            char const* const first = at;
            if (withSign && at != end && *at == '-') {
                ++at;
            }
            char const* const digits = at;
            skipDigits(at, end);
            std::ptrdiff_t found = at - digits;
            if (at != end && *at == '.') {
                char const* const fraction = ++at;
                skipDigits(at, end);
                found += at - fraction;
            }
            numbers[i] = {first, static_cast<std::size_t>(at - first)};
            skipGap(at, end, gaps[i + 1]);
            if (found == 0 || (gaps[i + 1].length == 0 && i + 1 < Count)) {
                return false;
            }
        }
        return at == end;
    }

private:
    static void skipDigits(char const*& at, char const* end) {
        while (at != end && isDigit(*at)) {
            ++at;
        }
    }
    static void skipGap(char const*& at, char const* end, Gap& gap) {
        char const* const first = at;
        for (; at != end && (isSpace(*at) || isMark(*at)); ++at) {
            gap.marks += isMark(*at) ? 1u : 0u;
            gap.tab = gap.tab || *at == '\t';
        }
        gap.length = static_cast<std::size_t>(at - first);
    }
};

/// The groups of an accepted line. `surely` tells that the pattern accepts a line that was split,
/// so that ordinary lines need no matching.
template <std::size_t Count, class Surely>
std::optional<std::array<std::string_view, Count>>
groupsOf(std::string_view line, Pattern<Count> const& pattern, Surely surely) {
    Split<Count> split;
    bool const isSplit = split.read(line);
    if (isSplit && surely(split)) {
        return split.numbers;
    }
    auto groups = pattern.match(line);
    if (groups && isSplit) {
        return split.numbers;
    }
    return groups;
}

} // namespace

std::optional<IORHeader> readIORHeader(std::string_view line) {
    auto const groups = groupsOf(line, headerPattern, [](Split<4> const& split) {
        auto const& [unit, start, end, intervals] = split.numbers;
        auto const& gaps = split.gaps;
        return unit.size() == 1 && unit[0] >= '1' && unit[0] <= '4' && isDigit(start.back()) &&
               isDigit(end.back()) && intervals.find('.') == std::string_view::npos &&
               gaps[0].marks == 0 && gaps[1].marks <= 1 && gaps[2].marks <= 1 &&
               gaps[3].marks <= 1 && gaps[4].marks == 0;
    });
    if (!groups) {
        return {};
    }
    return IORHeader{leadingNumber<int>((*groups)[0]), leadingNumber<double>((*groups)[1]),
                     leadingNumber<double>((*groups)[2]),
                     leadingNumber<std::int64_t>((*groups)[3])};
}

std::optional<IORPair> readIORPair(std::string_view line) {
    auto const groups = groupsOf(line, pairPattern, [](Split<2> const& split) {
        return split.gaps[0].marks == 0 && split.gaps[1].marks <= 1 && split.gaps[2].marks == 0;
    });
    if (!groups) {
        return {};
    }
    return IORPair{leadingNumber<double>((*groups)[0]), leadingNumber<double>((*groups)[1])};
}

std::optional<IORColumns> readIORColumns(std::string_view line) {
    auto const parts = [](auto const& gap) {
        return gap.marks == 1 || (gap.marks == 0 && gap.tab);
    };
    auto const groups = groupsOf(line, columnsPattern, [parts](Split<3> const& split) {
        return split.gaps[0].marks == 0 && parts(split.gaps[1]) && parts(split.gaps[2]) &&
               split.gaps[3].length == 0;
    });
    auto const columns = [](std::array<std::string_view, 3> const& texts) {
        return IORColumns{leadingNumber<double>(texts[0]), leadingNumber<double>(texts[1]),
                          leadingNumber<double>(texts[2])};
    };
    if (groups) {
        return columns(*groups);
    }
    // The dot lets "-1" pass, but not "-0.1", which would go unmentioned.
    if (Split<3> split; split.read(line, true)) {
        IORColumns const read = columns(split.numbers);
        if (read.n < 0 || read.k < 0) {
            return read;
        }
    }
    return {};
}

} // namespace zsg
