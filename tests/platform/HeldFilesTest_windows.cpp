#include "nyxembedded/Renderer.h"
#include "nyxembedded/writeFile.h"
#include "nyxrender/nyxRT_api.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <windows.h>

namespace {

using nyx::embedded::Renderer;
using testing::StartsWith;

/// A handle on a file, as another program has one; which modes it shares decides who else may.
std::unique_ptr<void, decltype(&CloseHandle)> held(QString const& path, DWORD shared) {
    std::wstring const name = QDir::toNativeSeparators(path).toStdWString();
    HANDLE const handle = CreateFileW(name.c_str(), GENERIC_READ, shared, nullptr, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    EXPECT_NE(handle, INVALID_HANDLE_VALUE);
    return {handle, &CloseHandle};
}

QByteArray contentOf(QString const& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "(none)";
}

TEST(HeldFiles, AreNeitherReplacedNorHalfReadAndNothingIsLost) {
    QTemporaryDir const folder;
    QString const file = folder.filePath("grüß_漆.json");
    std::string const path = file.toStdString();
    Renderer renderer;
    nyx::ColorId const red = renderer.colors().add("Red", {1, 0, 0, 1});
    ASSERT_EQ(renderer.saveScene(path), "");
    QByteArray const saved = contentOf(file);
    renderer.colors().change(red, {0, 1, 0, 1});
    renderer.api()->set_modified(true);

    for (DWORD const shared :
         {DWORD{0}, DWORD{FILE_SHARE_READ}, DWORD{FILE_SHARE_READ | FILE_SHARE_WRITE}}) {
        auto handle = held(file, shared);
        EXPECT_THAT(nyx::embedded::writeFile(path, "new"), StartsWith(path + ": ")) << shared;
        EXPECT_THAT(renderer.saveScene(path), StartsWith(path + ": ")) << shared;
        EXPECT_TRUE(renderer.isModified()) << shared;
        Renderer other;
        EXPECT_EQ(other.loadScene(path).empty(), shared != 0) << "shared by nobody, read by nobody";
        EXPECT_EQ(other.colors().ids().size(), shared != 0 ? 1u : 0u);
        handle.reset();
        EXPECT_EQ(contentOf(file), saved) << shared;
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 1) << "a temporary file stays";
    }
    EXPECT_EQ(renderer.saveScene(path), "") << "as soon as it is free";
    EXPECT_NE(contentOf(file), saved);
    EXPECT_FALSE(renderer.isModified());
}

} // namespace
