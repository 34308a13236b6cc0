#include "host/Arguments.h"
#include "host/InputFile.h"

#include "zsg/values/pathFromUtf8.h"

#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

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

} // namespace
