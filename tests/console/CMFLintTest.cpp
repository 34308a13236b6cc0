#include "host/CMFLint.h"

#include "host/InputFile.h"
#include "support/sourceDir.h"
#include "zsg/materials/ZCMFSchema.h"

#include <QTextStream>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <random>
#include <string>

using namespace app;

namespace {

std::string text(std::vector<CMFFinding> const& findings) {
    std::string out;
    for (CMFFinding const& f : findings) {
        out += std::to_string(f.line) + ' ' + f.place + (f.isFault ? ": " : ": (note) ") + f.text +
               '\n';
    }
    return out;
}

/// Whether the linter finds a fault; it must be so exactly when loading fails.
bool isFaulty(QByteArray const& file) {
    auto const findings = lintCMF(file);
    bool const faulty = std::ranges::any_of(findings, &CMFFinding::isFault);
    QTextStream in(file);
    EXPECT_EQ(faulty, !zsg::ZCMFSchema::load(in).schema) << file.toStdString() << text(findings);
    return faulty;
}

TEST(CMFLint, SaysWhatKeepsAFileFromBeingASchema) {
    EXPECT_EQ(text(lintCMF("{}")), "1 : there is no \"version\"\n"
                                   "1 : there is no \"schemaName\"\n"
                                   "1 : there are no \"attributes\"\n");
    EXPECT_EQ(text(lintCMF("")), "1 : is no JSON: illegal value\n");
    EXPECT_EQ(text(lintCMF("x\n{\n\"version\": 1,\n]")),
              "1 : (note) what stands before the first brace is skipped\n"
              "4 : is no JSON: unterminated object\n");
    EXPECT_EQ(text(lintCMF("\n{\"version\": 1, \"attributes\": [],\n \"schemaName\": \"a\tb\"}")),
              "1 : (note) what stands before the first brace is skipped\n"
              "3 : (note) is no JSON by the letter; other programs may refuse it, and what follows "
              "was not looked at in detail\n"
              "2 : Schema attributes are incorrectly formatted\n");
}

TEST(CMFLint, FindsAFaultExactlyWhenLoadingFails) {
    auto const examples = std::filesystem::path(sourceDir()) / "examples/cmf";
    std::vector<QByteArray> files;
    for (auto const& entry : std::filesystem::recursive_directory_iterator(examples)) {
        if (entry.path().extension() == ".json") {
            files.push_back(
                QByteArray::fromStdString(readInputFile(entry.path().string(), largestCMFSchema)));
            EXPECT_EQ(isFaulty(files.back()), entry.path().parent_path().filename() == "bad");
            EXPECT_EQ(lintCMF(files.back()).empty(),
                      entry.path().parent_path().filename() == "good");
        }
    }
    // Files with pieces of each other, or with bytes changed.
    std::mt19937 random(4);
    auto const below = [&random](qsizetype n) {
        return std::uniform_int_distribution<qsizetype>(0, n - 1)(random);
    };
    char const pieces[] = "{}[]\",:0123456789.-etruefalsnvison|\n\t \\\xFF";
    for (int round = 0; round < 2000; ++round) {
        QByteArray file = files[static_cast<std::size_t>(below(qsizetype(files.size())))];
        for (int edits = 0; edits < 3; ++edits) {
            qsizetype const at = below(file.size());
            if (below(2) == 0) {
                file[at] = pieces[below(sizeof pieces)];
            } else {
                file.remove(at, below(40));
            }
            file += '\n';
        }
        isFaulty(file);
    }
    std::string const deep(1023, '[');
    isFaulty(QByteArray::fromStdString("{\"a\":" + deep + std::string(1023, ']') + "}"));
    isFaulty(QByteArray::fromStdString("{\"a\":" + deep + "[]" + std::string(1023, ']') + "}"));
}

} // namespace
