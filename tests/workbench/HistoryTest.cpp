#include "workbench/CountingProxy.h"
#include "workbench/WindowScene.h"
#include "workbench/app/Application.h"
#include "workbench/history/HistoryModel.h"
#include "zsg/colors/ColorController.h"
#include "zsg/colors/ColorDB.h"

#include "zcore/ZUndoCommand.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTableView>
#include <QTest>

#include <random>
#include <stdexcept>

using namespace workbench;

namespace {

using HistoryTest = WindowScene;

/// The rows: in brackets the current one, a star behind the saved one, undone ones in slants.
std::string rows(QAbstractItemModel const& model) {
    std::string text;
    for (int row = 0; row < model.rowCount(); ++row) {
        QModelIndex const index = model.index(row, 0);
        bool const current = index.data(Qt::FontRole).value<QFont>().bold();
        bool const undone = index.data(HistoryModel::UndoneRole).toBool();
        EXPECT_EQ(undone, index.data(Qt::FontRole).value<QFont>().italic());
        text += current ? "[" : undone ? "/" : " ";
        text += index.data(Qt::ToolTipRole).toString().toStdString();
        text += index.data(HistoryModel::SavedRole).toBool() ? "*" : "";
        text += current ? "]" : undone ? "/" : " ";
    }
    return text;
}

} // namespace

TEST_F(HistoryTest, ShowsWhatIsDoneUndoneAndSaved) {
    auto& view = find<QTableView>("historyView");
    QAbstractItemModel& model = *view.model();
    EXPECT_EQ(rows(model), "[Start*]");
    run("color name 1 Petrol");
    run("color name Linen Flax");
    EXPECT_EQ(rows(model), " Start*  Set Color name (Petrol) [Set Color name (Flax)]");
    EXPECT_EQ(find<QAction>("undo").text(), "&Undo Set Color name (Flax)");
    find<QAction>("undo").trigger();
    stack().setClean();
    EXPECT_EQ(rows(model), " Start [Set Color name (Petrol)*]/Set Color name (Flax)/");
    EXPECT_EQ(find<QAction>("redo").text(), "&Redo Set Color name (Flax)");
    EXPECT_EQ(model.index(2, 0).data(Qt::AccessibleTextRole).toString(),
              "Set Color name (Flax), undone");
    EXPECT_EQ(model.index(1, 0).data(Qt::AccessibleTextRole).toString(),
              "Set Color name (Petrol), saved");

    // Choosing a row goes there; the view follows whoever else moves.
    view.setCurrentIndex(model.index(0, 0));
    EXPECT_EQ(history(), "|Set Color name (Petrol);Set Color name (Flax);");
    stack().redo();
    EXPECT_EQ(view.currentIndex().row(), 1);
    EXPECT_TRUE(window.panel("history")->select("Set Color name (Flax)"));
    EXPECT_EQ(stack().index(), 2);
    run("color name Ivory Bone");
    stack().goTo(1);
    run("color name Ivory Chalk");
    EXPECT_EQ(rows(model), " Start  Set Color name (Petrol)* [Set Color name (Chalk)]");
}

TEST_F(HistoryTest, FollowsEveryTurnOfTheStack) {
    scratch = true;
    HistoryModel model(scene());
    QAbstractItemModelTester const tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    std::mt19937 random(4711);
    for (int i = 0; i < 500; ++i) {
        switch (random() % 8) {
        case 0:
            stack().undo();
            break;
        case 1:
            stack().redo();
            break;
        case 2:
            stack().goTo(static_cast<int>(random() % 12));
            break;
        case 3:
            stack().setClean();
            break;
        case 4:
            stack().setLimit(static_cast<int>(5 + random() % 10));
            break;
        case 5:
            run("color drag Linen 0.1 0.2 0.3 in 3");
            break;
        default:
            run("color name 1 " + std::to_string(i));
        }
        ASSERT_EQ(rows(model), rows(HistoryModel(scene()))) << i;
    }
}

TEST_F(HistoryTest, APushCostsWhatIsSeen) {
    auto& view = find<QTableView>("historyView");
    window.showPanel("history");
    auto& counting = *new CountingProxy(view.model(), &window);
    view.setModel(&counting);
    auto const askedByPushes = [&](int depth) {
        while (stack().count() < depth) {
            run("color name 1 " + std::to_string(stack().count()));
        }
        counting.cells = counting.rows = 0;
        for (int i = 0; i < 10; ++i) {
            run("color name 1 A" + std::to_string(i));
        }
        EXPECT_TRUE(view.visualRect(view.currentIndex()).intersects(view.viewport()->rect()));
        return counting.cells + counting.rows;
    };
    int const few = askedByPushes(100);
    EXPECT_GT(few, 0);
    EXPECT_LT(askedByPushes(400), few + few / 10) << "whatever the depth";
}

TEST_F(HistoryTest, AStepThatFailsIsSaid) {
    class Failing final : public ZUndoCommand {
    public:
        Failing() : ZUndoCommand(ZCommandId(1000), "Fails") {}
        bool undo() override { return false; }
        bool redo() override { return true; }
    };
    stack().push(new Failing);
    QString said;
    QObject::connect(&scene(), &Scene::said, [&](QString const& text) { said = text; });
    find<QAction>("undo").trigger();
    EXPECT_EQ(said, "A step of the history could not be carried out.");

    class Throwing final : public ZUndoCommand {
    public:
        Throwing() : ZUndoCommand(ZCommandId(1000), "Throws") {}
        bool undo() override { throw std::runtime_error("no more memory"); }
        bool redo() override { return true; }
    };
    stack().push(new Throwing);
    auto& application = static_cast<Application&>(*QCoreApplication::instance());
    application.onFailure = [&](QString const& why) { said = why; };
    // Not by a key or an action: on Qt's way from there a few bytes are left behind.
    QMetaObject::invokeMethod(
        &scene(), [&] { stack().undo(); }, Qt::QueuedConnection);
    QCoreApplication::processEvents();
    application.onFailure = {};
    EXPECT_EQ(said, "no more memory") << "the window goes on";
    EXPECT_EQ(stack().index(), 0);
}

TEST_F(HistoryTest, WhatComesByWithinACommandIsToldAfterIt) {
    class Turning final : public ZUndoCommand {
    public:
        Turning() : ZUndoCommand(ZCommandId(1000), "Turns") {}
        bool undo() override { return true; }
        bool redo() override {
            QCoreApplication::processEvents();
            return true;
        }
    };
    int told = 0;
    QObject const watch; // the scene outlives both
    QObject::connect(&scene(), &Scene::changed, &watch, [&] { ++told; });
    scene().colorController()->setDisplayName(scene().colorDB()->colors()[0], "Chalk");
    stack().push(new Turning);
    EXPECT_EQ(told, 0);
    for (QDeadlineTimer limit(10'000); told == 0 && !limit.hasExpired();) {
        settle();
    }
    EXPECT_GT(told, 0);
}
