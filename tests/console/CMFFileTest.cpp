#include "host/CMFFile.h"

#include "host/Arguments.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>

using namespace app;

namespace {

/// Lets every file end after so many bytes, as a full disk does.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        rlimit const limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }
    FullDisk(FullDisk const&) = delete;
    FullDisk& operator=(FullDisk const&) = delete;

private:
    void (*handler_)(int);
    rlimit before_{};
};

QByteArray contents(QString const& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

std::string failure(zsg::ZCMFSchema const& schema, QString const& path) {
    try {
        saveCMFFile(schema, path.toStdString());
    } catch (CommandError const& error) {
        return error.what();
    }
    return "none";
}

TEST(CMFFile, aSaveThatFailsLeavesTheOldFile) {
    QTemporaryDir const folder;
    QString const path = folder.filePath("trim.json");
    zsg::ZCMFSchema const old{"Trim", {{"Grain"}}};
    saveCMFFile(old, path.toStdString());
    QByteArray const before = contents(path);
    ASSERT_FALSE(before.isEmpty());

    // From a file that fits into the buffers to one that does not.
    for (int const attributes : {2, 100, 20'000}) {
        zsg::ZCMFSchema large{"Large", {}};
        for (int i = 0; i < attributes; ++i) {
            large.attributes.push_back({QString::number(i)});
        }
        for (rlim_t const room : {rlim_t(0), rlim_t(1), rlim_t(60), rlim_t(attributes * 60)}) {
            FullDisk const full(room);
            EXPECT_EQ(failure(large, path).rfind(path.toStdString() + ": could not be written", 0),
                      0u)
                << attributes << ' ' << room;
        }
        EXPECT_EQ(contents(path), before);
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList("trim.json"))
            << "nothing is left beside it";
    }
    EXPECT_NE(failure(old, folder.path()), "none");
    EXPECT_NE(failure(old, folder.filePath("nowhere/trim.json")), "none");
    QTextStream in(contents(path));
    EXPECT_EQ(*zsg::ZCMFSchema::load(in).schema, old);
}

} // namespace
