#include "values/IORLines.h"

#include "values/IORPattern.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>

namespace zsg {

namespace {

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

constexpr IORPattern<4> headerPattern("s(u)s,s(d.Dd)s,s(d.Dd)s,s(Dd)s");
constexpr IORPattern<2> pairPattern("s(d.d)s,s(d.d)s");
constexpr IORPattern<3> columnsPattern("s(d.d)s;s(d.d)s;s(d.d)");

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
std::optional<std::array<double, Count>>
numbersOf(std::string_view line, IORPattern<Count> const& pattern, Surely surely) {
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

/// The leading whole number of a text. Only absurd files have one that does not fit; it reads as 0.
std::int64_t wholeNumber(std::string_view text) {
    std::int64_t number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

/// Whether a line that consists of four numbers means these: the first must name a unit.
bool isHeader(Split<4> const& split) {
    double const unit = split.numbers[0].value();
    return unit == 1 || unit == 2 || unit == 3 || unit == 4;
}

/// Whether the header's pattern surely accepts such a line.
bool isPlainHeader(Split<4> const& split) {
    auto const& [unit, start, end, intervals] = split.numbers;
    auto const& gaps = split.gaps;
    return unit.text.size() == 1 && start.text.back() != '.' && end.text.back() != '.' &&
           intervals.text.size() == intervals.count && gaps[0].marks == 0 && gaps[1].marks <= 1 &&
           gaps[2].marks <= 1 && gaps[3].marks <= 1 && gaps[4].marks == 0;
}

} // namespace

std::optional<IORHeader> readIORHeader(std::string_view line) {
    Split<4> split;
    bool const isSplit = split.read(line) && isHeader(split);
    if (!isSplit || !isPlainHeader(split)) {
        auto const groups = headerPattern.match(line);
        if (!groups) {
            return {};
        }
        if (!isSplit) {
            auto const& [unit, start, end, intervals] = *groups;
            return IORHeader{wholeNumber(unit), leadingNumber(start), leadingNumber(end),
                             wholeNumber(intervals)};
        }
    }
    auto const& [unit, start, end, intervals] = split.numbers;
    return IORHeader{wholeNumber(unit.text), start.value(), end.value(),
                     wholeNumber(intervals.text)};
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
