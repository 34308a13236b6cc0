#include "values/hintParsing.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <clocale>
#include <string>

namespace zsg {
namespace {

std::string text(std::optional<HintRange> const& range) {
    if (!range) {
        return "none";
    }
    return std::to_string(static_cast<int>(range->low * 10)) + " " +
           std::to_string(static_cast<int>(range->high * 10));
}

struct Row {
    char const* hint;
    char const* limits; ///< in tenths
    char const* slider;
    bool kelvin;
};

constexpr Row rows[] = {
    {nullptr, "none", "none", false},
    {"", "none", "none", false},
    {"-limits,0.5,8-\n", "5 80", "none", false},
    {"-range,-1,1-\n-limits,0,100-\n-kelvin-\n", "0 1000", "-10 10", true},
    {"-spin,0,10,0.5-\n", "none", "0 100", false},
    {"-range,0,5-\n-spin,0,10,0.5-\n", "none", "0 100", false},
    {"-spin,0,10-\n-range,0,5-\n", "none", "none", false}, // a broken spin hides the range
    {"-spinning-range,0,5-\n", "none", "none", false},
    {"-limits,1-\n-limits,1,2-\n", "none", "none", false}, // only the first is read
    {"-limits,1,2", "10 20", "none", false}, // what follows the numbers is not required
    {"-limits, 1, 2-\n", "10 20", "none", false},
    {"-limits ,1,2-\n", "none", "none", false},
    {"-limits,1 ,2-\n", "none", "none", false},
    {"-limits,a,b-\n-kelvin", "none", "none", false},
    {"-Limits,1,2-\n-Kelvin-", "none", "none", false},
    {"x-kelvin-y", "none", "none", true},
};

void expectRows() {
    for (Row const& row : rows) {
        char const* const name = row.hint ? row.hint : "null";
        EXPECT_EQ(text(hintLimits(row.hint)), row.limits) << name;
        EXPECT_EQ(text(hintSliderRange(row.hint)), row.slider) << name;
        EXPECT_EQ(hintKelvin(row.hint), row.kelvin) << name;
    }
}

/// Sets a locale with a decimal comma; compiles one into `folder` when the machine has none.
bool setCommaLocale(QTemporaryDir const& folder) {
    constexpr char name[] = "de_DE.UTF-8";
    // Windows has them without further ado, under names of its own.
    bool const set = std::setlocale(LC_ALL, name) || std::setlocale(LC_ALL, "German_Germany") ||
                     std::setlocale(LC_ALL, "de-DE");
    if (!set) {
        qputenv("LOCPATH", QFile::encodeName(folder.path()));
        QProcess::execute("localedef", {"-f", "UTF-8", "-i", "de_DE", folder.filePath(name)});
        std::setlocale(LC_ALL, name);
        qunsetenv("LOCPATH");
    }
    return *std::localeconv()->decimal_point == ',';
}

TEST(Hint, PiecesAreReadWithAPointWhateverTheLocale) {
    std::string const before = std::setlocale(LC_ALL, nullptr);
    QTemporaryDir const folder;
    // First, as the reading of a hint must not have touched the thread's locale before.
    bool const comma = setCommaLocale(folder);
    expectRows();
    EXPECT_EQ(*std::localeconv()->decimal_point == ',', comma) << "the application's is kept";
    std::setlocale(LC_ALL, before.c_str());
    expectRows();
    if (!comma) {
        GTEST_SKIP() << "no locale with a decimal comma can be had";
    }
}

} // namespace
} // namespace zsg
