#include "Rows.h"
#include "values/IORLines.h"
#include "zsg/values/loadIORFile.h"
#include "zsg/values/pathFromUtf8.h"

#include <QTemporaryDir>

#define PCRE2_CODE_UNIT_WIDTH 8
#include <pcre2.h>
#include <re2/re2.h>

#include <charconv>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <random>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

namespace {

using bench::contestant;
using bench::ours;
using bench::target;

char const* const headerPattern =
    R"(^\s*([1234])\s*[,;\t]?\s*(\d*.?\d+)\s*[,;\t]?\s*(\d*.?\d+)\s*[,;\t]?\s*(\d+)\s*$)";
char const* const pairPattern = R"(^\s*(\d*.?\d*)\s*[,;\t]?\s*(\d*.?\d*)\s*$)";
char const* const columnsPattern = R"(^\s*(\d*.?\d*)\s*[,;\t]\s*(\d*.?\d*)\s*[,;\t]\s*(\d*.?\d*)$)";

constexpr int lineCount = 100'000;

/// Measured-looking lines: "1.234 0.567", "412.34,1.234,0.567" or "4 400.1 700.2 1234".
std::vector<std::string> linesFor(char const* pattern) {
    std::mt19937 random(5);
    auto const number = [&random](int whole) {
        return std::to_string(static_cast<int>(random() % 900) * whole / 900) + '.' +
               std::to_string(100 + random() % 900);
    };
    std::vector<std::string> lines;
    for (int i = 0; i < lineCount; ++i) {
        if (pattern == pairPattern) {
            lines.push_back(number(9) + ' ' + number(9));
        } else if (pattern == columnsPattern) {
            lines.push_back(number(900) + ',' + number(9) + ',' + number(9));
        } else {
            lines.push_back("4 " + number(900) + ' ' + number(900) + ' ' +
                            std::to_string(random() % 9999));
        }
    }
    return lines;
}

double numberOf(char const* first, char const* last) {
    double value = 0;
    std::from_chars(first, last, value);
    return value;
}

/// Runs `read` over all lines; it returns the sum of the numbers of a line.
template <class Read>
auto reading(char const* pattern, Read read) {
    return [pattern, read](benchmark::State& state) {
        std::vector<std::string> const lines = linesFor(pattern);
        for (auto _ : state) {
            double sum = 0;
            for (std::string const& line : lines) {
                sum += read(line);
            }
            benchmark::DoNotOptimize(sum);
        }
    };
}

class Jit {
public:
    explicit Jit(char const* pattern) {
        int error = 0;
        PCRE2_SIZE offset = 0;
        code_ = pcre2_compile(reinterpret_cast<PCRE2_SPTR>(pattern), PCRE2_ZERO_TERMINATED, 0,
                              &error, &offset, nullptr);
        pcre2_jit_compile(code_, PCRE2_JIT_COMPLETE);
        match_ = pcre2_match_data_create_from_pattern(code_, nullptr);
    }

    double operator()(std::string const& line) const {
        int const groups = pcre2_jit_match(code_, reinterpret_cast<PCRE2_SPTR>(line.data()),
                                           line.size(), 0, 0, match_, nullptr);
        PCRE2_SIZE const* const ends = pcre2_get_ovector_pointer(match_);
        double sum = 0;
        for (int i = 1; i < groups; ++i) {
            sum += numberOf(line.data() + ends[2 * i], line.data() + ends[2 * i + 1]);
        }
        return sum;
    }

private:
    pcre2_code* code_ = nullptr;
    pcre2_match_data* match_ = nullptr;
};

auto standardRegex(char const* pattern) {
    return [regex = std::regex(pattern)](std::string const& line) {
        double sum = 0;
        if (std::cmatch match;
            std::regex_match(line.data(), line.data() + line.size(), match, regex)) {
            for (std::size_t i = 1; i < match.size(); ++i) {
                sum += numberOf(match[i].first, match[i].second);
            }
        }
        return sum;
    };
}

/// A file of 100,000 lines, removed at the end of the program.
std::string fileFor(char const* pattern, char const* name) {
    static QTemporaryDir const folder;
    std::string path = folder.filePath(QString::fromLatin1(name)).toStdString();
    std::ofstream file(zsg::pathFromUtf8(path));
    if (pattern == pairPattern) {
        file << "4 400 700 " << lineCount - 1 << '\n';
    }
    for (std::string const& line : linesFor(pattern)) {
        file << line << '\n';
    }
    return path;
}

auto loading(char const* pattern, char const* name) {
    return [pattern, name](benchmark::State& state) {
        std::string const path = fileFor(pattern, name);
        zsg::FloatArray values;
        for (auto _ : state) {
            if (!zsg::loadIORFile(path, values) || values.size() != 3 * lineCount) {
                state.SkipWithError("not loaded");
            }
        }
    };
}

auto gettingLines(char const* pattern, char const* name) {
    return [pattern, name](benchmark::State& state) {
        std::string const path = fileFor(pattern, name);
        std::regex const regex(pattern);
        for (auto _ : state) {
            std::ifstream file(zsg::pathFromUtf8(path));
            std::vector<double> values;
            std::smatch match;
            for (std::string line; std::getline(file, line);) {
                if (std::regex_match(line, match, regex)) {
                    for (std::size_t i = 1; i < match.size(); ++i) {
                        values.push_back(std::strtod(match[i].str().c_str(), nullptr));
                    }
                }
            }
            benchmark::DoNotOptimize(values.data());
        }
    };
}

bool const registered = [] {
    auto const lines = [](std::string const& workload, char const* pattern, auto read) {
        contestant("6a", workload, ours, reading(pattern, read));
        contestant("6a", workload, "PCRE2 JIT",
                   [pattern](benchmark::State& state) { reading(pattern, Jit(pattern))(state); });
        contestant("6a", workload, "std::regex", [pattern](benchmark::State& state) {
            reading(pattern, standardRegex(pattern))(state);
        });
        target({"6a", workload, "PCRE2 JIT", 0.9});
    };
    lines("IOR pairs, 100 k lines to numbers", pairPattern, [](std::string const& line) {
        auto const pair = zsg::readIORPair(line);
        return pair->n + pair->k;
    });
    lines("IOR columns, 100 k lines to numbers", columnsPattern, [](std::string const& line) {
        auto const columns = zsg::readIORColumns(line);
        return columns->wavelength + columns->n + columns->k;
    });
    lines("IOR headers, 100 k lines to numbers", headerPattern, [](std::string const& line) {
        auto const header = zsg::readIORHeader(line);
        return header->start + header->end;
    });

    contestant("6b", "IOR .nk file, 100 k lines", ours, loading(pairPattern, "a.nk"));
    contestant("6b", "IOR .nk file, 100 k lines", "getline, std::regex, strtod",
               gettingLines(pairPattern, "a.nk"));
    target({"6b", "IOR .nk file, 100 k lines", "getline, std::regex, strtod", 0.12});
    contestant("6b", "IOR .csv file, 100 k lines", ours, loading(columnsPattern, "a.csv"));
    contestant("6b", "IOR .csv file, 100 k lines", "getline, std::regex, strtod",
               gettingLines(columnsPattern, "a.csv"));
    target({"6b", "IOR .csv file, 100 k lines", "getline, std::regex, strtod", 0.12});

    for (std::size_t const blanks : {std::size_t{200}, std::size_t{1'000'000}}) {
        std::string const workload = "IOR hostile line, " + std::to_string(blanks) + " blanks";
        auto const line = [blanks] { return std::string(blanks, ' ') + "xyz"; };
        contestant("6c", workload, ours, [line](benchmark::State& state) {
            std::string const text = line();
            for (auto _ : state) {
                benchmark::DoNotOptimize(zsg::readIORPair(text));
            }
        });
        contestant("6c", workload, "RE2", [line](benchmark::State& state) {
            std::string const text = line();
            RE2 const expression(pairPattern, RE2::Latin1);
            std::string groups[2];
            for (auto _ : state) {
                benchmark::DoNotOptimize(RE2::FullMatch(text, expression, &groups[0], &groups[1]));
            }
        });
    }
    target({"6c", "IOR hostile line, 200 blanks", "RE2", 2});
    return true;
}();

} // namespace
