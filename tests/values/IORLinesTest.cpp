#include "values/IORLines.h"

#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <limits>
#include <random>
#include <regex>
#include <string>
#include <vector>

using namespace zsg;
using namespace std::string_literals;

namespace {

using Numbers = std::vector<double>;

double leading(std::string const& text) {
    std::size_t const sign = text.size() > 1 && text[0] == '+' && text[1] != '-' ? 1 : 0;
    double number = 0;
    std::from_chars(text.data() + sign, text.data() + text.size(), number);
    return number;
}

/// What a line means by the regular expression and the rule for plain numbers; empty when refused.
Numbers expected(std::string const& line, std::regex const& pattern, std::size_t count) {
    bool const isHeader = count == 4;
    static std::regex const plainNumber(R"(\d+\.?\d*|\.\d+)");
    static std::regex const gap(R"([\s,;]+)");
    std::smatch match;
    if (!std::regex_match(line, match, pattern)) {
        return {};
    }
    std::vector<std::string> groups(match.size() - 1);
    for (std::size_t i = 0; i < groups.size(); ++i) {
        groups[i] = match[i + 1].str();
    }
    std::vector<std::string> fields;
    bool plain = true;
    for (std::sregex_token_iterator it(line.begin(), line.end(), gap, -1), end; it != end; ++it) {
        if (it->length() > 0) {
            plain = plain && std::regex_match(it->first, it->second, plainNumber);
            fields.push_back(it->str());
        }
    }
    if (plain && isHeader && fields.size() == count) {
        double const unit = leading(fields[0]);
        plain = unit == 1 || unit == 2 || unit == 3 || unit == 4;
    }
    Numbers numbers;
    for (std::string const& text : plain&& fields.size() == count ? fields : groups) {
        numbers.push_back(leading(text));
    }
    return numbers;
}

Numbers numbersOf(std::optional<IORHeader> const& h) {
    return h ? Numbers{double(h->unit), h->start, h->end, double(h->intervals)} : Numbers{};
}
Numbers numbersOf(std::optional<IORPair> const& p) { return p ? Numbers{p->n, p->k} : Numbers{}; }
Numbers numbersOf(std::optional<IORColumns> const& c) {
    return c ? Numbers{c->wavelength, c->n, c->k} : Numbers{};
}

} // namespace

TEST(IORLines, ReadsWhatTheRegularExpressionsAccept) {
    std::regex const header(R"(^\s*([1234])\s*[,;\t]?\s*(\d*.?\d+)\s*[,;\t]?\s*(\d*.?\d+)\s*)"
                            R"([,;\t]?\s*(\d+)\s*$)");
    std::regex const pair(R"(^\s*(\d*.?\d*)\s*[,;\t]?\s*(\d*.?\d*)\s*$)");
    std::regex const columns(R"(^\s*(\d*.?\d*)\s*[,;\t]\s*(\d*.?\d*)\s*[,;\t]\s*(\d*.?\d*)$)");
    std::string const alphabet = "1234590..  ,,;;\t\t\r\v-+ex\0\xc3"s;
    std::string const sober("0124.  ,;\t");
    std::mt19937 random(20240229);
    int accepted = 0;
    for (int round = 0; round < 20000; ++round) {
        std::string const& letters = round % 2 == 0 ? alphabet : sober;
        std::string line(random() % 14, ' ');
        for (char& c : line) {
            c = letters[random() % letters.size()];
        }
        Numbers const wanted[] = {expected(line, header, 4), expected(line, pair, 2),
                                  expected(line, columns, 3)};
        ASSERT_EQ(numbersOf(readIORPair(line)), wanted[1]) << '"' << line << '"';
        auto const threeColumns = readIORColumns(line);
        bool const beyond = wanted[2].empty() && threeColumns; // the one kind that is added
        if (beyond) {
            EXPECT_TRUE(threeColumns->n < 0 || threeColumns->k < 0) << '"' << line << '"';
        } else {
            ASSERT_EQ(numbersOf(threeColumns), wanted[2]) << '"' << line << '"';
        }
        Numbers whole = wanted[0];
        if (!whole.empty()) { // a unit or count such as "2.5" reads as a whole number
            whole[0] = std::trunc(whole[0]);
            whole[3] = std::trunc(whole[3]);
        }
        ASSERT_EQ(numbersOf(readIORHeader(line)), whole) << '"' << line << '"';
        for (Numbers const& numbers : wanted) {
            accepted += numbers.empty() ? 0 : 1;
        }
    }
    EXPECT_GT(accepted, 5000); // else the lines prove nothing
}

TEST(IORLines, PlainNumbersWinOverTheDotThatMatchesABlank) {
    EXPECT_EQ(numbersOf(readIORHeader(" 2;0.4,.7\t10 \r")), (Numbers{2, 0.4, 0.7, 10}));
    EXPECT_EQ(numbersOf(readIORHeader("1 0.64 6.60")), (Numbers{1, 0.64, 6.6, 0}));
    EXPECT_EQ(numbersOf(readIORHeader("12 3 4 5")), (Numbers{1, 2, 4, 5})); // 1, "2 3", 4, 5
    EXPECT_EQ(numbersOf(readIORHeader("4.0 400 700 3")), (Numbers{4, 400, 700, 3}));
    EXPECT_EQ(readIORHeader("4 400 700 9223372036854775807")->intervals,
              std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(readIORHeader("4 400 700 9223372036854775808")->intervals, 0);
    EXPECT_EQ(numbersOf(readIORPair("1 2 3")), (Numbers{1, 3})); // "1 2" and "3"
    EXPECT_EQ(numbersOf(readIORPair(std::string(400, '9') + " 2")), (Numbers{0, 2}));
    EXPECT_EQ(numbersOf(readIORColumns("500;1.5;-0.1")), (Numbers{500, 1.5, -0.1}));
    EXPECT_EQ(numbersOf(readIORColumns(" 500\t-1.5 , 2 \r")), (Numbers{500, -1.5, 2}));
    for (char const* refused : {"500 1.5 -0.1", "500;;1.5;-0.1", ";500;1.5;-0.1", "500;1.5;-0.1;",
                                "500;1.5;--0.1", "-500.5,1,2", "wavelength,n,k"}) {
        EXPECT_EQ(numbersOf(readIORColumns(refused)), Numbers()) << refused;
    }
}

TEST(IORLines, HostileLinesAreReadInLinearTime) {
    std::string const blanks(1'000'000, ' ');
    std::string const digits(1'000'000, '1');
    EXPECT_FALSE(readIORPair(blanks + "xyzw"));
    EXPECT_FALSE(readIORHeader(blanks + "xyzw"));
    EXPECT_FALSE(readIORColumns(blanks + "xyzw"));
    EXPECT_TRUE(readIORPair(blanks));
    EXPECT_TRUE(readIORPair(digits));
    EXPECT_TRUE(readIORHeader(digits));
    EXPECT_TRUE(readIORColumns(digits + "x,\t\t," + digits));
}
