#include "zsg/values/loadIORFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <string>
#include <vector>

using zsg::FloatArray;

namespace {

struct Result {
    bool loaded = false;
    FloatArray values;
    std::string messages;

    [[nodiscard]] std::vector<float> wavelengths() const {
        std::vector<float> list;
        for (qsizetype i = 0; i < values.size(); i += 3) {
            list.push_back(values[i]);
        }
        return list;
    }
};

class LoadIORFile : public testing::Test {
protected:
    static Result load(std::string const& path) {
        Result result;
        result.values = {7};
        testing::internal::CaptureStderr();
        result.loaded = zsg::loadIORFile(path, result.values);
        result.messages = testing::internal::GetCapturedStderr();
        return result;
    }

    Result load(char const* name, std::string const& text) const {
        QString const path = folder_.filePath(QString::fromUtf8(name));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text.data(), static_cast<qint64>(text.size()));
        file.close();
        return load(path.toStdString());
    }

    QTemporaryDir folder_;
};

} // namespace

TEST_F(LoadIORFile, PairsGetEquallySpacedWavelengths) {
    Result exact = load("a.nk", "a heading\n4 400 700 3\n1 .1\n2 .2\n3 .3\n4 .4\n");
    EXPECT_TRUE(exact.loaded);
    EXPECT_EQ(exact.values, (FloatArray{400, 1, .1f, 500, 2, .2f, 600, 3, .3f, 700, 4, .4f}));
    EXPECT_EQ(exact.messages, "");

    Result more = load("a.ior", "4 400 700 3\n1 2\nno pair\n1 2\n1 2\n1 2\n1 2");
    EXPECT_EQ(more.wavelengths(), (std::vector<float>{400, 500, 600, 700, 700}));
    EXPECT_EQ(more.messages, "Found 5 samples but expected 4.\n");

    EXPECT_EQ(load("b.NK", "2 0.4 0.7 1\n1 2\n1 2\n").wavelengths(),
              (std::vector<float>{400, 700}));
    EXPECT_NEAR(load("b.nk", "1 2 2 0\n1 2\n").wavelengths().at(0), 619.9, 0.05);
    EXPECT_EQ(load("b.nk", "3 25000 20000 1\n1 2\n1 2\n").wavelengths(),
              (std::vector<float>{400, 500}));
    EXPECT_EQ(load("b.nk", "4 500 600 0\n1 2\n1 2\n").wavelengths(),
              (std::vector<float>{500, 500}));
    // Blank lines are pairs as well; white space at the end of a line, such as CR, is none.
    EXPECT_EQ(load("b.nk", "4 400 600 2\r\n\r\n1 2\r\n 3;4 \r\n").values,
              (FloatArray{400, 0, 0, 500, 1, 2, 600, 3, 4}));
    Result const few = load("b.nk", "4 300 400 9223372036854775807\n1 2\n");
    EXPECT_EQ(few.messages, "Found 1 samples but expected 9223372036854775808.\n");
    EXPECT_EQ(few.wavelengths(), (std::vector<float>{300}));
}

TEST_F(LoadIORFile, PathsAreUtf8) {
    ASSERT_TRUE(QDir(folder_.path()).mkdir(QStringLiteral("Füße 漆")));
    EXPECT_TRUE(load("Füße 漆/grüß_漆.nk", "4 400 700 0\n1 2\n").loaded);
}

TEST_F(LoadIORFile, TablesSkipWhatDoesNotFit) {
    Result const result = load("a.b.Csv", "wavelength,n,k\n500;1.5;-0.1\n500,1.5,0\n501,-1,0\n"
                                          "502\t0.25\t2.5\n503 1 1\n504, 1,2");
    EXPECT_TRUE(result.loaded);
    EXPECT_EQ(result.values, (FloatArray{500, 1.5f, 0, 502, 0.25f, 2.5f, 504, 1, 2}));
    std::string const negative =
        "Real and imaginary parts of ior must be non-negative. Skipping sample\n";
    EXPECT_EQ(result.messages, negative + negative);

    std::string const tooLong = "500" + std::string(93, ' ') + ",1,2"; // 100 characters
    EXPECT_EQ(load("a.csv", "1,2,3\n" + tooLong + "\n4,5,6\n").values, (FloatArray{1, 2, 3}));
    // The end of a line is not counted, nor does it keep a line from being read.
    EXPECT_EQ(load("a.csv", "n\r\n4,5,6\r\n" + tooLong.substr(0, 99) + "\r\n7,8,9\r").wavelengths(),
              (std::vector<float>{4, 500}));
    EXPECT_EQ(load("a.csv", tooLong.substr(0, 99) + "\n4,5,6\n").wavelengths(),
              (std::vector<float>{500, 4}));
}

TEST_F(LoadIORFile, NothingToReadLeavesTheResultAlone) {
    std::string const table = "500,1.5,0\n";
    EXPECT_TRUE(QDir(folder_.path()).mkdir("folder.csv"));
    load("csv", table);
    QString const before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(folder_.path()));
    Result const dotless = load(std::string("csv"));
    QDir::setCurrent(before);
    struct {
        Result result;
        char const* messages;
    } const rows[] = {
        {load("a.txt", table), ""},
        {dotless, ""},
        {load("a.csv", ""), ""},
        {load("a.nk", ""), "Did not find a first line in file?\n"},
        {load("a.nk", "1 2\n3 4\n"), "Did not find a first line in file?\n"},
        {load("a.nk", "4 400 700 3\nnothing\n"), "Found 0 samples but expected 4.\n"},
        {load(folder_.filePath("missing.nk").toStdString()), ""},
        {load(folder_.filePath("folder.csv").toStdString()), ""},
        {load(std::string("")), ""},
    };
    for (auto const& row : rows) {
        EXPECT_FALSE(row.result.loaded);
        EXPECT_EQ(row.result.values, FloatArray{7});
        EXPECT_EQ(row.result.messages, row.messages);
    }
}
