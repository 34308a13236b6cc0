#include "nyxembedded/writeFile.h"

#include "nyxembedded/Renderer.h"
#include "nyxrender/nyxRT_api.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <string>

#ifdef Q_OS_UNIX
    #include <csignal>
    #include <sys/resource.h>
    #include <sys/stat.h>
#endif

namespace {

using nyx::embedded::Renderer;
using nyx::embedded::writeFile;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

std::string contentOf(std::string const& path) {
    QFile file(QString::fromStdString(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "(none)";
}

struct Folder {
    QTemporaryDir dir;
    std::string file = (dir.path() + "/grüß_漆.json").toStdString();

    /// What lies in the folder, temporary files included.
    QStringList entries() const {
        return QDir(dir.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
};

TEST(writeFile, ReplacesTheWholeFileOrLeavesIt) {
    Folder folder;
    ASSERT_EQ(writeFile(folder.file, "first"), "");
    ASSERT_EQ(writeFile(folder.file, std::string("\0\r\n", 3)), "");
    EXPECT_EQ(contentOf(folder.file), std::string("\0\r\n", 3));
    ASSERT_EQ(writeFile(folder.file, ""), "");
    EXPECT_EQ(contentOf(folder.file), "");
    EXPECT_THAT(writeFile(folder.dir.path().toStdString(), "x"), EndsWith(": is a folder"));
    std::string const nowhere = folder.dir.path().toStdString() + "/none/x";
    EXPECT_EQ(writeFile(nowhere, "x"), nowhere + ": No such file or directory");

#ifdef Q_OS_UNIX
    // A link stays a link, and the permissions stay.
    QFile(QString::fromStdString(folder.file)).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    QString const link = folder.dir.path() + "/link";
    ASSERT_TRUE(QFile::link(QString::fromStdString(folder.file), link));
    ASSERT_EQ(writeFile(link.toStdString(), "through"), "");
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_EQ(contentOf(folder.file), "through");
    EXPECT_FALSE(QFileInfo(link).permissions() & QFile::ReadOther);
    // A pipe is not replaced by a file.
    std::string const pipe = folder.dir.path().toStdString() + "/pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(writeFile(pipe, "x"), pipe + ": is not a regular file");
#endif
}

TEST(writeFile, ReplacesNoFileThatIsWriteProtectedOrThatTheSystemHolds) {
    Folder folder;
    ASSERT_EQ(writeFile(folder.file, "old"), "");
    QFile file(QString::fromStdString(folder.file));
    ASSERT_TRUE(file.setPermissions(QFile::ReadOwner));
    if (!QFileInfo(file).isWritable()) { // nothing is protected from the superuser
        EXPECT_THAT(writeFile(folder.file, "new"), StartsWith(folder.file + ": "));
        EXPECT_EQ(contentOf(folder.file), "old");
    }
    ASSERT_TRUE(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner));

    ASSERT_EQ(writeFile(folder.file, "old"), "");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    std::string const problem = writeFile(folder.file, "new");
    EXPECT_EQ(file.readAll(), "old"); // who has it open reads on
    file.close();
    if (problem.empty()) {
        EXPECT_EQ(contentOf(folder.file), "new");
    } else { // Windows replaces no file that somebody has open
        EXPECT_THAT(problem, StartsWith(folder.file + ": "));
        EXPECT_EQ(contentOf(folder.file), "old");
    }
    EXPECT_EQ(folder.entries().size(), 1);
}

TEST(writeFile, LeavesTheOldFileWhicheverStepFails) {
    Folder folder;
    ASSERT_EQ(writeFile(folder.file, "old"), "");
    std::string const content((3 << 20) + 1, 'x'); // four writes
    int step = 1;
    for (;; ++step) {
        auto const target =
            nyx::embedded::failingTarget(nyx::embedded::diskTarget(folder.file), step);
        std::string const problem = writeFile(*target, folder.file, content);
        if (problem.empty()) {
            break;
        }
        EXPECT_EQ(problem, folder.file + ": No space left on device") << step;
        EXPECT_EQ(contentOf(folder.file), "old") << step;
        EXPECT_EQ(folder.entries().size(), 1) << step;
    }
    EXPECT_EQ(step, 8); // open, four writes, sync and replace failed
    EXPECT_EQ(contentOf(folder.file), content);
}

TEST(writeFile, AFailedSaveLeavesTheOldSceneFileAndTheSceneModified) {
    Folder folder;
    Renderer renderer;
    renderer.colors().add("Red", {1, 0, 0, 1});
    ASSERT_EQ(renderer.saveScene(folder.file), "");
    std::string const before = contentOf(folder.file);
    renderer.colors().change(renderer.colors().find("Red"), {0, 1, 0, 1});
    renderer.api()->set_modified(true);
    for (int step = 1; step <= 4; ++step) {
        renderer.faults().failSaveStep = step;
        EXPECT_THAT(renderer.saveScene(folder.file), HasSubstr("No space left")) << step;
        EXPECT_EQ(contentOf(folder.file), before) << step;
        EXPECT_TRUE(renderer.isModified()) << step;
    }
    renderer.faults().failSaveStep = 0;
    EXPECT_EQ(renderer.saveScene(folder.file), "");
    EXPECT_FALSE(renderer.isModified());
}

#ifdef Q_OS_UNIX

// The system's own answer to a disk that fills up in the middle: the first write takes a part.
TEST(writeFile, NoticesThatTheSystemTookOnlyAPart) {
    Folder folder;
    ASSERT_EQ(writeFile(folder.file, "old"), "");
    auto const former = std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &limit), 0);
    rlimit small = limit;
    for (rlim_t const room : {rlim_t{1}, rlim_t{5000}, rlim_t{(1 << 20) + 1}}) {
        small.rlim_cur = room;
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
        std::string const problem = writeFile(folder.file, std::string(2 << 20, 'x'));
        setrlimit(RLIMIT_FSIZE, &limit);
        EXPECT_EQ(problem, folder.file + ": File too large") << room;
        EXPECT_EQ(contentOf(folder.file), "old") << room;
        EXPECT_EQ(folder.entries().size(), 1) << room;
    }
    std::signal(SIGXFSZ, former);
}

TEST(writeFile, NoticesAFullFileSystem) {
    Folder folder;
    QStringList const mount{"-t", "tmpfs", "-o", "size=64k", "none", folder.dir.path()};
    if (QProcess::execute("mount", mount) != 0) {
        GTEST_SKIP() << "no file system can be mounted here";
    }
    EXPECT_EQ(writeFile(folder.file, "old"), "");
    EXPECT_EQ(writeFile(folder.file, std::string(1 << 20, 'x')),
              folder.file + ": No space left on device");
    EXPECT_EQ(contentOf(folder.file), "old");
    EXPECT_EQ(folder.entries().size(), 1);
    QProcess::execute("umount", {folder.dir.path()});
}

#endif

} // namespace
