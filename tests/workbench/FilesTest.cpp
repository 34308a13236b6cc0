#include "workbench/WindowScene.h"
#include "workbench/app/Autosave.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QProcess>
#include <QSettings>
#include <QTest>
#include <QTimer>

using namespace workbench;

namespace {

using FilesTest = WindowScene;

QByteArray contents(QString const& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

} // namespace

TEST_F(FilesTest, TheTitleSaysWhetherThereIsSomethingToSave) {
    scratch = true; // what is undone below was saved
    EXPECT_EQ(window.windowTitle(), "scene.json[*] – zsg-workbench");
    EXPECT_FALSE(window.isWindowModified());
    run("color name Teal Petrol");
    EXPECT_TRUE(window.isWindowModified());
    EXPECT_TRUE(window.files().save());
    EXPECT_FALSE(window.isWindowModified());
    EXPECT_TRUE(contents(inFolder("scene.json")).contains("Petrol"));
    stack().undo();
    EXPECT_TRUE(window.isWindowModified());
    stack().redo();
    EXPECT_FALSE(window.isWindowModified());
    EXPECT_TRUE(window.files().saveAs(inFolder("other.json")));
    EXPECT_EQ(window.windowTitle(), "other.json[*] – zsg-workbench");
    scene().noteUnrecordedChange();
    EXPECT_TRUE(window.isWindowModified()) << "what cannot be undone can still be lost";
}

TEST_F(FilesTest, NobodyLeavesWithoutAnAnswer) {
    scratch = true;
    EXPECT_TRUE(window.close()) << "nothing is unsaved";
    window.show();
    run("color name Teal Petrol");
    document.autosave();
    answer("Cancel");
    EXPECT_FALSE(window.close());
    EXPECT_EQ(asked, "scene.json has changes that are not saved.");
    EXPECT_FALSE(contents(inFolder("scene.json")).contains("Petrol"));

    document.host().renderer().faults().failSaveStep = 2;
    answer("Save");
    // The warning of the failure comes while the first dialog closes.
    QTimer::singleShot(50, &window, [this] { answer("OK"); });
    EXPECT_FALSE(window.close()) << "the disk is full";
    EXPECT_TRUE(window.isWindowModified());
    document.host().renderer().faults().failSaveStep = 0;

    EXPECT_EQ(QDir(copies()).entryList({"*.json"}, QDir::Files).size(), 2);
    QFile broken(inFolder("broken.json"));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write("{");
    broken.close();
    answer("Discard");
    QTimer::singleShot(50, &window, [this] { answer("OK"); });
    EXPECT_FALSE(window.files().open(inFolder("broken.json")));
    EXPECT_TRUE(window.isWindowModified());
    EXPECT_EQ(QDir(copies()).entryList({"*.json"}, QDir::Files).size(), 2) << "still unsaved";
    answer("Discard");
    EXPECT_TRUE(window.close());
    EXPECT_TRUE(QDir(copies()).entryList({"*.json"}, QDir::Files).isEmpty());
    window.show();
    answer("Discard");
    EXPECT_TRUE(window.files().open(inFolder("scene.json")));
    EXPECT_EQ(history(), "|");

    answer("OK");
    EXPECT_FALSE(window.files().open(inFolder("nowhere.json")));
    EXPECT_TRUE(asked.contains("nowhere.json")) << asked.toStdString();
    EXPECT_EQ(document.path(), inFolder("scene.json"));
}

TEST_F(FilesTest, ACopyOutlivesTheProgram) {
    QByteArray const before = contents(inFolder("scene.json"));
    document.autosave();
    EXPECT_FALSE(QDir(copies()).exists()) << "there is nothing to lose";
    run("color name Teal Petrol");
    document.autosave();
    EXPECT_TRUE(Autosave::orphans(copies()).empty()) << "its program still runs";

    // What a process leaves that was killed: its files, and a lock with the number of nobody.
    QString const name = QDir(copies()).entryList({"*.lock"}, QDir::Files | QDir::Hidden).value(0);
    ASSERT_NE(name, "");
    QDir().mkdir(inFolder("left"));
    for (QString const& file : QDir(copies()).entryList(QDir::Files)) {
        QFile::copy(copies() + '/' + file, inFolder("left/" + file));
    }
    QProcess ended;
    ended.start("true", QStringList());
    qint64 const nobody = ended.processId();
    ended.waitForFinished();
    QList<QByteArray> lock = contents(inFolder("left/" + name)).split('\n');
    lock[0] = QByteArray::number(nobody);
    QFile lockFile(inFolder("left/" + name));
    ASSERT_TRUE(lockFile.open(QIODevice::WriteOnly));
    lockFile.write(lock.join('\n'));
    lockFile.close();

    auto const orphans = Autosave::orphans(inFolder("left"));
    ASSERT_EQ(orphans.size(), 1u);
    EXPECT_EQ(orphans[0].original, inFolder("scene.json"));
    Document second(inFolder("second"));
    MainWindow other(second);
    answer("Keep It for Later");
    other.files().offerOrphans(inFolder("left"));
    EXPECT_FALSE(second.isModified());
    answer("Open the Copy");
    other.files().offerOrphans(inFolder("left"));
    EXPECT_EQ(second.name(), "scene.json (recovered)");
    EXPECT_TRUE(second.isModified());
    EXPECT_EQ(second.path(), "") << "saving asks where";
    EXPECT_NE(second.host().renderer().dump().find("Petrol"), std::string::npos);
    EXPECT_EQ(contents(inFolder("scene.json")), before);
    EXPECT_TRUE(QFile::exists(orphans[0].file)) << "the copy is the only one";
    EXPECT_TRUE(Autosave::orphans(inFolder("left")).empty()) << "another window cannot take it";
    second.scene().noteUnrecordedChange();
    second.autosave();
    EXPECT_TRUE(
        contents(inFolder("left/" + name).replace(".lock", ".origin.json")).contains("scene.json"))
        << "what it is a copy of stays known";
    EXPECT_TRUE(other.files().saveAs(inFolder("saved.json")));
    EXPECT_FALSE(QFile::exists(orphans[0].file));
}

TEST_F(FilesTest, CommandsOfTheConsoleLoseNothing) {
    scratch = true;
    run("color list");
    EXPECT_FALSE(document.isModified());
    run("raw color new Draft 1 0 0");
    EXPECT_TRUE(document.isModified()) << "there is no entry for it";
    run("scene save " + inFolder("other.json").toStdString());
    EXPECT_EQ(document.path(), inFolder("other.json"));
    EXPECT_FALSE(document.isModified());
    run("lightlayer name 1 Evening");
    EXPECT_TRUE(document.isModified());
    run("macro begin Unfinished");
    run("color name Teal Petrol");
    EXPECT_TRUE(window.files().save());
    EXPECT_FALSE(document.isModified()) << "the macro has ended";
    EXPECT_EQ(history(), "Unfinished;|");
    run("color name Petrol Lagoon");
    run("scene load " + inFolder("scene.json").toStdString());
    EXPECT_EQ(history(), "|");
    EXPECT_EQ(document.path(), inFolder("scene.json"));
    auto const kept = Autosave::orphans(copies());
    ASSERT_EQ(kept.size(), 1u) << "what the command did not ask about";
    EXPECT_EQ(kept[0].original, inFolder("other.json"));
    EXPECT_TRUE(contents(kept[0].file).contains("Lagoon"));
    run("macro begin Left");
    EXPECT_EQ(document.open(inFolder("other.json")), "");
}

TEST_F(FilesTest, RecentFilesStayWhenTheyVanish) {
    QSettings().clear();
    scratch = true;
    for (int i = 0; i < 12; ++i) {
        EXPECT_TRUE(window.files().saveAs(inFolder(QString("%1.json").arg(i))));
    }
    EXPECT_EQ(FileActions::recentFiles().size(), 10);
    QFile::remove(inFolder("11.json"));
    Document document2(copies());
    MainWindow restarted(document2);
    QMenu* recent = nullptr;
    for (QMenu* const menu : restarted.findChildren<QMenu*>()) {
        recent = menu->title() == "Open &Recent" ? menu : recent;
    }
    ASSERT_NE(recent, nullptr);
    emit recent->aboutToShow();
    ASSERT_EQ(recent->actions().size(), 10);
    EXPECT_FALSE(recent->actions()[0]->isEnabled()) << "it was removed";
    recent->actions()[1]->trigger();
    EXPECT_EQ(document2.path(), inFolder("10.json"));
}

TEST_F(FilesTest, AnotherProgramMayChangeTheFile) {
    scratch = true;
    run("color name Ivory Bone");
    QByteArray const bytes = contents(inFolder("scene.json")).replace("\"Teal\"", "\"Lagoon\"");
    QFile file(inFolder("scene.json"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();
    answer("Cancel");
    EXPECT_FALSE(window.files().save()) << "nobody has read yet what is there";
    EXPECT_EQ(asked, "Another program has changed scene.json. Write over it?");
    QMenu open; // whatever it is about may go with the scene
    open.addAction("Anything");
    open.popup({});
    QTest::qWait(100);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    open.close();
    asked.clear();
    QTimer waiting;
    QObject::connect(&waiting, &QTimer::timeout, [this] {
        if (QApplication::activeModalWidget()) {
            answer("Yes");
        }
    });
    waiting.start(20);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !asked.isEmpty() && !document.isModified(); }));
    waiting.stop();
    EXPECT_TRUE(asked.startsWith("Another program has changed scene.json")) << asked.toStdString();
    EXPECT_NE(dump().find("Lagoon"), std::string::npos);
}
