#include "support/sourceDir.h"
#include "workbench/WindowScene.h"
#include "workbench/app/Application.h"
#include "workbench/app/runWorkbench.h"
#include "workbench/colors/ColorwayModel.h"
#include "workbench/colors/ColorwaysPanel.h"
#include "workbench/colors/SubColorModel.h"
#include "workbench/colors/colorMime.h"
#include "zsg/colors/ColorController.h"
#include "zsg/colors/ColorDB.h"

#include <QAbstractItemModelTester>
#include <QDir>
#include <QImage>
#include <QListView>
#include <QMimeData>
#include <QStatusBar>
#include <QTableView>
#include <QToolButton>

using namespace workbench;

namespace {

class ColorwaysTest : public WindowScene {
protected:
    [[nodiscard]] std::string subs() {
        auto const& model = *find<QListView>("subColours").model();
        std::string text;
        for (int row = 0; row < model.rowCount(); ++row) {
            QModelIndex const index = model.index(row, 0);
            text += (index.data(SubColorModel::ActiveRole).toBool() ? "*" : "") +
                    index.data().toString().toStdString() + ' ';
        }
        return text;
    }

    /// Drops what was taken from somewhere on the list of sub-colours, before a row.
    void drop(QMimeData const& data, Qt::DropAction action, int row) {
        find<QListView>("subColours").model()->dropMimeData(&data, action, row, 0, {});
        settle();
    }

    [[nodiscard]] QAbstractItemModel& board() { return *find<QTableView>("colorwayTable").model(); }

    [[nodiscard]] std::string columnTexts(int column) {
        std::string text =
            board().headerData(column, Qt::Horizontal, Qt::ToolTipRole).toString().toStdString() +
            ':';
        for (int row = 0; row < board().rowCount(); ++row) {
            text += ' ' + board().index(row, column).data().toString().toStdString();
        }
        return text;
    }
};

} // namespace

TEST_F(ColorwaysTest, SubColoursAreDraggedRemovedAndActivated) {
    window.panel("colours")->select("Cable");
    settle();
    QAbstractItemModelTester const tester(find<QListView>("subColours").model(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_EQ(subs(), "*LightGray Black FireBrick ");
    window.panel("colours")->select("Gold");
    settle();
    EXPECT_EQ(subs(), "*LightGray Black FireBrick ") << "a plain colour may come to it";
    auto& list = find<QListView>("subColours");
    auto const gold = scene().colorDB()->colors()[0];
    drop(*makeColorMime(scene(), {gold}), Qt::CopyAction, 1);
    EXPECT_EQ(subs(), "*LightGray White Black FireBrick ");
    std::unique_ptr<QMimeData> const black(list.model()->mimeData({list.model()->index(2, 0)}));
    drop(*black, Qt::MoveAction, 0);
    EXPECT_EQ(subs(), "Black *LightGray White FireBrick ");
    EXPECT_EQ(history(), "Add Sub Color (Cable);Move Sub Color (Cable);|");
    find<QToolButton>("lockSubs").setChecked(true);
    drop(*black, Qt::MoveAction, -1);
    EXPECT_EQ(stack().count(), 2) << "locked";
    EXPECT_TRUE(window.statusBar()->currentMessage().contains("locked"));
    find<QToolButton>("lockSubs").setChecked(false);

    list.setCurrentIndex(list.model()->index(2, 0));
    find<QAction>("activateSub").trigger();
    settle();
    EXPECT_EQ(subs(), "Black LightGray *White FireBrick ");
    find<QAction>("activateSub").trigger();
    EXPECT_EQ(stack().count(), 3) << "it is active already";
    find<QAction>("removeSub").trigger();
    settle();
    EXPECT_EQ(subs(), "Black LightGray *FireBrick ") << "the one that took its place";
    list.setCurrentIndex(list.model()->index(0, 0));
    find<QAction>("subDown").trigger();
    settle();
    EXPECT_EQ(subs(), "LightGray Black *FireBrick ");
    EXPECT_EQ(list.currentIndex().row(), 1);
    stack().goTo(0);
    settle();
    EXPECT_EQ(subs(), "*LightGray Black FireBrick ");

    auto const multi = scene().colorDB()->multiColors()[0];
    drop(*makeColorMime(scene(), {multi}), Qt::CopyAction, 0);
    EXPECT_EQ(stack().index(), 0) << "no multi-colour in another one";
    scratch = true; // copies are new records
    drop(*black, Qt::CopyAction, 0);
    EXPECT_EQ(subs(), "Black 1 *LightGray Black FireBrick ");
}

TEST_F(ColorwaysTest, TurningIntoAMultiColourAndBack) {
    scratch = true;
    window.panel("colours")->select("Tomato");
    find<QAction>("toggleMulti").trigger();
    settle();
    EXPECT_EQ(subs(), "*Tomato ");
    EXPECT_EQ(window.panel("colours")->rowCount(), 43);
    find<QAction>("toggleMulti").trigger();
    settle();
    EXPECT_EQ(history(), "Enable Multi Color (Tomato);Disable Multi Color (Tomato 1);|");
}

TEST_F(ColorwaysTest, TheBoardFollowsEveryEdit) {
    QAbstractItemModelTester const tester(&board(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    auto& view = find<QTableView>("colorwayTable");
    ASSERT_EQ(board().columnCount(), 3);
    EXPECT_EQ(columnTexts(1), "Studio: DimGray Black White Black DarkGray");
    EXPECT_TRUE(window.panel("colorways")->select("Studio"));
    find<QAction>("applyColorway").trigger();
    settle();
    EXPECT_EQ(columnTexts(1).substr(0, 15), "Studio, active:");
    window.panel("colours")->select("Cable");
    EXPECT_EQ(subs(), "LightGray *Black FireBrick ") << "the swatches follow";
    auto& panel = static_cast<ColorwaysPanel&>(*window.panel("colorways"));
    auto const cover = scene().colorDB()->multiColors()[0];
    auto const other = scene().colorDB()->colorFromId(cover).getSubColorId(0);
    panel.setCell(board().index(0, 2), other);
    panel.setCell(board().index(0, 2), other);
    settle();
    EXPECT_EQ(columnTexts(2), "Autumn: SteelBlue SaddleBrown Wheat FireBrick AntiqueWhite");
    panel.setCell(board().index(1, 2), {});
    settle();
    EXPECT_EQ(columnTexts(2), "Autumn: SteelBlue – Wheat FireBrick AntiqueWhite");
    EXPECT_EQ(history(), "Switch Colorway (Studio);Edit Colorway (Autumn);Edit Colorway "
                         "(Autumn);|");
    find<QAction>("deleteColorway").trigger();
    settle();
    EXPECT_EQ(board().columnCount(), 2);
    find<QToolButton>("showDeletedColorways").setChecked(true);
    EXPECT_EQ(columnTexts(1).substr(0, 24), "Studio, active, deleted:");
    view.setCurrentIndex(board().index(0, 1));
    find<QAction>("deleteColorway").trigger();
    settle();
    EXPECT_EQ(columnTexts(1).substr(0, 15), "Studio, active:");

    int const entries = stack().count();
    run("renderer colorway Nordic");
    EXPECT_EQ(columnTexts(0).substr(0, 15), "Nordic, active:");
    EXPECT_EQ(stack().count(), entries) << "the renderer's own switch is nobody's edit";
    scratch = true;
    find<QAction>("newColorway").trigger();
    settle();
    EXPECT_EQ(columnTexts(3), "Colorway: SteelBlue BurlyWood Ivory LightGray WhiteSmoke");
}

TEST(WorkbenchScripts, LeaveTheSceneThatTheConsoleLeaves) {
    QDir::setCurrent(QString::fromStdString(sourceDir()));
    QTemporaryDir const folder;
    QStringList const scripts = QDir("examples/scripts").entryList({"*.zsg"});
    ASSERT_GT(scripts.size(), 20);
    for (QString const& script : scripts) {
        // They expect what is so without panels only: how many events there were, and no brush.
        if (script == "demo-1-scene.zsg" || script == "brush-session.zsg") {
            continue;
        }
        std::string const path = "examples/scripts/" + script.toStdString();
        std::ostringstream out;
        std::ostringstream errors;
        Document document(folder.path());
        ASSERT_EQ(document.open("examples/scenes/showroom.json"), "");
        MainWindow window(document);
        window.show();
        QTemporaryDir const work;
        QFile::link(QDir::currentPath() + "/examples", work.filePath("examples"));
        QDir::setCurrent(work.path());
        EXPECT_EQ(document.runScript(path, out, errors), 0) << errors.str();
        app::Host host(out);
        ASSERT_EQ(host.load("examples/scenes/showroom.json"), "");
        EXPECT_EQ(app::Interpreter(host).runScriptFile(path, false, errors), 0);
        EXPECT_TRUE(document.host().dump() == host.dump()) << path;
        QDir::setCurrent(QString::fromStdString(sourceDir()));
    }
}

TEST(WorkbenchScripts, DrawTheWindowInTheSizeThatIsAskedFor) {
    QTemporaryDir const folder;
    QString const picture = folder.filePath("window.png");
    CommandLineResult const read = readCommandLine(
        {"zsg-workbench", QString::fromStdString(sourceDir()) + "/examples/scenes/showroom.json",
         "--screenshot", picture, "--size", "800x600"});
    auto& application = static_cast<Application&>(*QCoreApplication::instance());
    EXPECT_EQ(runWorkbench(*read.line, application), 0);
    EXPECT_EQ(QImage(picture).size(), QSize(800, 600)) << "no panel asks for a larger screen";
}
