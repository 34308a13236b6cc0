#include "host/Arguments.h"
#include "host/Host.h"
#include "host/InputFile.h"
#include "host/Interpreter.h"
#include "support/sourceDir.h"
#include "zsg/values/pathFromUtf8.h"

#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#ifndef _WIN32
    #include <sys/stat.h>
#endif

namespace {

using testing::HasSubstr;

class FilesTest : public testing::Test {
protected:
    std::string path(std::string const& name) const {
        return folder.path().toStdString() + "/F\xC3\xBC\xC3\x9F" + "e " + name;
    }
    void put(std::string const& name, std::string const& bytes) const {
        std::ofstream(zsg::pathFromUtf8(path(name)), std::ios::binary) << bytes;
    }
    std::string refusal(std::string const& name, std::uintmax_t largest) const {
        try {
            (void)app::readInputFile(path(name), largest);
        } catch (app::CommandError const& error) {
            return error.what();
        }
        return {};
    }

    QTemporaryDir folder;
};

TEST_F(FilesTest, WholeFilesAreReadFromRegularFilesOfALimitedSizeOnly) {
    put("empty", "");
    put("full", std::string("a\r\n\x1A\0b", 6));
    EXPECT_EQ(app::readInputFile(path("full"), 6), std::string("a\r\n\x1A\0b", 6));
    EXPECT_THAT(refusal("empty", 6), HasSubstr("e empty: is empty"));
    EXPECT_THAT(refusal("missing", 6), HasSubstr("e missing: cannot be opened: No such file"));
    EXPECT_THAT(refusal("full", 5), HasSubstr("holds more than 0 MiB"));
    std::filesystem::resize_file(zsg::pathFromUtf8(path("full")), (3u << 20) + 1);
    EXPECT_THAT(refusal("full", 3u << 20), HasSubstr("holds more than 3 MiB"));
    std::filesystem::create_directory(zsg::pathFromUtf8(path("folder")));
    EXPECT_THAT(refusal("folder", 6), HasSubstr("is a folder"));
#ifndef _WIN32
    ASSERT_EQ(::mkfifo(path("pipe").c_str(), 0600), 0);
    EXPECT_THAT(refusal("pipe", 6), HasSubstr("is no regular file")); // opening it would wait
#endif
}

// Each command that writes a file, on a disk that is full at each step of writing.
TEST_F(FilesTest, AFullDiskLeavesTheFileThatWasThere) {
    struct Row {
        char const* save; ///< words before the path
        char const* name;
    };
    Row const rows[] = {{"weave save cloth", "weave.svg"},  {"weave save cloth", "weave.json"},
                        {"gradient save dusk", "dusk.svg"}, {"curve save ease", "curve.svg"},
                        {"ior save gold", "gold.svg"},      {"lightlayer save", "lights.svg"},
                        {"color card", "card.svg"},         {"multi card", "multi.svg"},
                        {"colorway board", "board.svg"},    {"brush sheet", "sheet.svg"},
                        {"brush save", "brush.json"},       {"cmf save", "schema.json"},
                        {"picture save", "surface.png"},    {"scene save", "scene.json"},
                        {"palette save", "some.gpl"}};
    std::ostringstream out;
    app::Host host(out);
    ASSERT_EQ(host.load(sourceDir() + "/examples/scenes/showroom.json"), "");
    app::Interpreter interpreter(host);
    for (char const* const line :
         {"weave new cloth plain", "gradient new dusk", "gradient add dusk 0 Gold",
          "curve new ease", "curve set ease UU 0 0 0 0 0.3 0 0.7 1 1 1 1 1", "brush new 24",
          "surface new 8"}) {
        interpreter.run(std::string_view(line));
    }
    interpreter.run({"ior", "load", "gold", sourceDir() + "/examples/data/gold.csv"});
    std::filesystem::create_directory(zsg::pathFromUtf8(path("disk")));
    for (Row const& row : rows) {
        std::string const name = "disk/" + std::string(row.name);
        put(name, "what was there");
        std::vector<std::string> words = app::splitWords(row.save);
        words.push_back(path(name));
        for (int step = 1; step <= 4; ++step) {
            host.renderer().faults().failSaveStep = step;
            try {
                interpreter.run(words);
                ADD_FAILURE() << row.save << " did not notice step " << step;
            } catch (app::CommandError const& error) {
                EXPECT_THAT(error.what(), HasSubstr(std::string(row.name) + ": No space left"));
            }
            EXPECT_EQ(app::readInputFile(path(name), 100), "what was there") << row.name;
        }
        host.renderer().faults().failSaveStep = 0;
        EXPECT_NO_THROW(interpreter.run(words));
        EXPECT_GT(app::readInputFile(path(name), 1 << 20).size(), 50u) << row.name;
    }
    std::filesystem::directory_iterator const files(zsg::pathFromUtf8(path("disk")));
    EXPECT_EQ(std::distance(begin(files), end(files)), std::ssize(rows)) << "nothing else is left";
}

} // namespace
