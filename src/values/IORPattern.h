#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace zsg {

[[nodiscard]] constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }
[[nodiscard]] constexpr bool isSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
[[nodiscard]] constexpr bool isMark(char c) { return c == ',' || c == ';'; }

/// A regular expression of this small family, as a row of steps:
///   s = \s*   d = \d*   D = \d   . = .?   , = [,;\t]?   ; = [,;\t]   u = [1234]   ( ) = a group
/// It must match a whole line. Time is linear in the length of the line.
template <std::size_t Groups>
class IORPattern {
public:
    using Texts = std::array<std::string_view, Groups>;

    consteval explicit IORPattern(std::string_view steps) {
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

} // namespace zsg
