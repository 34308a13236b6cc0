#include "workbench/WindowScene.h"
#include "workbench/app/Application.h"
#include "workbench/app/Autosave.h"
#include "workbench/app/runWorkbench.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>
#include <QTest>
#include <QTimer>

using namespace workbench;

namespace {

using FilesTest = WindowScene;

QByteArray contents(QString const& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

void write(QString const& path, QByteArray const& text) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
}

qsizetype filesIn(QString const& folder, QString const& pattern) {
    return QDir(folder).entryList({pattern}, QDir::Files).size();
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

    // Nobody may write there, not even root.
    QDir().mkdir(inFolder("folder"));
    for (QString const& target : {inFolder("folder"), QString("/proc/scene.json")}) {
        answer("OK");
        EXPECT_FALSE(window.files().saveAs(target));
        EXPECT_TRUE(asked.startsWith("The scene cannot be saved; it is as it was.\n\n" + target))
            << asked.toStdString();
        EXPECT_TRUE(window.isWindowModified());
        EXPECT_EQ(document.path(), inFolder("scene.json"));
    }

    EXPECT_EQ(filesIn(copies(), "*.json"), 2);
    write(inFolder("broken.json"), "{");
    answer("Discard");
    QTimer::singleShot(50, &window, [this] { answer("OK"); });
    EXPECT_FALSE(window.files().open(inFolder("broken.json")));
    EXPECT_TRUE(window.isWindowModified());
    EXPECT_EQ(filesIn(copies(), "*.json"), 2) << "still unsaved";
    answer("Discard");
    EXPECT_TRUE(window.close());
    EXPECT_EQ(filesIn(copies(), "*.json"), 0);
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

    write(inFolder("edit.zsg"), "color name Teal Petrol\n");
    QString const left =
        QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) + "/autosave";
    QProcess program;
    program.start(ZSG_WORKBENCH,
                  {inFolder("scene.json"), "--autosave", "1", "--script", inFolder("edit.zsg")});
    ASSERT_TRUE(QTest::qWaitFor([&] { return filesIn(left, "*.json") == 2; }, 60'000));
    EXPECT_TRUE(Autosave::orphans(left).empty()) << "its program still runs";
    program.kill();
    ASSERT_TRUE(program.waitForFinished());
    EXPECT_EQ(contents(inFolder("scene.json")), before);
    QTimer waiting;
    QObject::connect(&waiting, &QTimer::timeout, [this] {
        if (QApplication::activeModalWidget()) {
            answer("Keep It for Later");
        } else if (!asked.isEmpty()) {
            QCoreApplication::exit();
        }
    });
    waiting.start(20);
    EXPECT_EQ(runWorkbench({}, *static_cast<Application*>(qApp)), 0);
    waiting.stop();
    EXPECT_TRUE(asked.startsWith("The program ended without saving " + inFolder("scene.json")));

    auto const orphans = Autosave::orphans(left);
    ASSERT_EQ(orphans.size(), 1u);
    EXPECT_EQ(orphans[0].original, inFolder("scene.json"));
    Document second(inFolder("second"));
    MainWindow other(second);
    answer("Keep It for Later");
    other.files().offerOrphans(left);
    EXPECT_FALSE(second.isModified());
    answer("Open the Copy");
    other.files().offerOrphans(left);
    EXPECT_EQ(second.name(), "scene.json (recovered)");
    EXPECT_TRUE(second.isModified());
    EXPECT_EQ(second.path(), "") << "saving asks where";
    EXPECT_NE(second.host().renderer().dump().find("Petrol"), std::string::npos);
    EXPECT_EQ(contents(inFolder("scene.json")), before);
    EXPECT_TRUE(QFile::exists(orphans[0].file)) << "the copy is the only one";
    EXPECT_TRUE(Autosave::orphans(left).empty()) << "another window cannot take it";
    second.scene().noteUnrecordedChange();
    second.autosave();
    EXPECT_TRUE(
        contents(QString(orphans[0].file).replace(".json", ".origin.json")).contains("scene.json"))
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
    write(inFolder("scene.json"),
          contents(inFolder("scene.json")).replace("\"Teal\"", "\"Lagoon\""));
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
