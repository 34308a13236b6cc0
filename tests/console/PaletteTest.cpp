#include "host/Palette.h"

#include "documents/documentText.h"
#include "host/Arguments.h"

#include <QString>
#include <gmock/gmock.h>

#include <string>

namespace {

/// What is written of a text that is read, or why it is none.
std::string readAndWritten(std::string const& text) {
    try {
        return app::paletteText(app::paletteFromText(text, "p.gpl"));
    } catch (app::CommandError const& error) {
        return error.what();
    }
}

TEST(Palette, LinesAreReadOrRefusedByTheirNumber) {
    std::string const head = "GIMP Palette\n";
    std::string const written = "GIMP Palette\nName: \nColumns: 0\n#\n";
    std::string const wanted = "expected red, green and blue of 0 to 255 and a name, found ";
    struct Row {
        std::string text, result;
    };
    Row const rows[] = {
        {"\xEF\xBB\xBFGIMP Palette\r\nColumns:16\r\nName: a b \r\n\r\n1 2\t3\r\n",
         "GIMP Palette\nName: a b\nColumns: 16\n#\n  1   2   3\tUntitled\n"},
        {head + "0 0 255  two  words \n# no\n255 0 0\tName: x",
         written + "  0   0 255\ttwo  words\n255   0   0\tName: x\n"},
        {head + "1 2 3 \xC3\xA9\n1 2 3 \xC3\xA9\n",
         written + "  1   2   3\t\xC3\xA9\n  1   2   3\t\xC3\xA9\n"},
        {head, written},
        {"Palette\n", "p.gpl:1: is no palette: the first line is not \"GIMP Palette\""},
        {head + "1 2 3\n1 2 256 x\n", "p.gpl:3: " + wanted + "\"1 2 256 x\""},
        {head + "-1 2 3\n", "p.gpl:2: " + wanted + "\"-1 2 3\""},
        {head + "1 2\n", "p.gpl:2: " + wanted + "\"1 2\""},
        {head + "1 2 3.5 x\n", "p.gpl:2: " + wanted + "\"1 2 3.5 x\""},
        {head + "1 2 3\nName: late\n", "p.gpl:3: " + wanted + "\"Name: late\""},
        {head + "Columns: 257\n", "p.gpl:2: expected columns of 0 to 256"},
        {head + "Columns: 3 4\n", "p.gpl:2: expected columns of 0 to 256"},
        {head + "1 2 3 a\x1b[2J\n", "p.gpl:2: the name has a control character: a\\x1b[2J"},
        {head + "1 2 3 \xE9\n", "p.gpl:2: the name is not UTF-8: \\xe9"},
    };
    for (Row const& row : rows) {
        EXPECT_EQ(readAndWritten(row.text), row.result);
    }
    EXPECT_EQ(app::paletteText({"a\nb", 0, {{"c\nd", {1, 2, 3}}}}),
              "GIMP Palette\nName: a\\nb\nColumns: 0\n#\n  1   2   3\tc\\nd\n");
}

TEST(Palette, IsWhatTheDocumentSays) {
    QString const document = documents::read("docs/formats.md");
    QString const example = document.section("\n## Palette (text)\n", 1).section("```\n", 1, 1);
    EXPECT_EQ(readAndWritten(example.toStdString()), example.toStdString());
    auto const table = documents::rowsOf(document, "Palette (text)");
    ASSERT_EQ(table.size(), 4u);
    EXPECT_EQ(documents::firstOf("`(.+)`", table[0][1])[0], example.section('\n', 0, 0));
    for (QString const& key : documents::firstOf("`(\\w+:)`", table[1][0])) {
        EXPECT_TRUE(example.contains('\n' + key + ' ')) << key.toStdString();
    }
    EXPECT_EQ(documents::firstOf(R"(0 to (\d+) columns)", table[1][1])[0].toInt(),
              app::Palette::mostColumns);
    int const largest = documents::firstOf(R"(0 to (\d+) in sRGB)", table[2][1])[0].toInt();
    std::string const none = documents::firstOf("\"(\\w+)\"", table[2][1])[0].toStdString();
    std::string const mark = documents::firstOf("`(.)`", table[3][0])[0].toStdString();
    std::string const text = "GIMP Palette\n\n" + mark + " x\n0 0 ";
    EXPECT_THAT(readAndWritten(text + std::to_string(largest)),
                testing::EndsWith('\t' + none + '\n'));
    EXPECT_THAT(readAndWritten(text + std::to_string(largest + 1)),
                testing::StartsWith("p.gpl:4:"));
    EXPECT_TRUE(app::paletteFromText(text + "1 " + none, "").colors[0].name.empty());
}

} // namespace
