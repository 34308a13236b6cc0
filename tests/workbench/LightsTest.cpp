#include "workbench/WindowScene.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTableView>
#include <QTest>
#include <QToolButton>
#include <QTreeView>

#include <array>

using namespace workbench;

namespace {

class LightsTest : public WindowScene {
protected:
    [[nodiscard]] QTableView& matrix() { return find<QTableView>("lightMatrix"); }
    [[nodiscard]] QTreeView& list() { return find<QTreeView>("lightLayerList"); }

    /// A line for each row of the matrix: in, partly or not.
    [[nodiscard]] std::string rows() {
        settle();
        QAbstractItemModel const& model = *matrix().model();
        std::string text;
        for (int row = 0; row < model.rowCount(); ++row) {
            for (int column = 0; column < model.columnCount(); ++column) {
                int const state = model.index(row, column).data(Qt::CheckStateRole).toInt();
                text += ".-x"[state];
            }
            text += ' ';
        }
        return text;
    }
    /// "Name lights" of each layer, inverted ones with an i, deleted ones with a d.
    [[nodiscard]] std::string layers() {
        settle();
        QAbstractItemModel const& model = *list().model();
        std::string text;
        for (int row = 0; row < model.rowCount(); ++row) {
            QString const spoken = model.index(row, 0).data(Qt::AccessibleTextRole).toString();
            text += model.index(row, 0).data().toString().toStdString() + ' ' +
                    model.index(row, 2).data().toString().toStdString() +
                    (model.index(row, 1).data(Qt::CheckStateRole).toInt() != 0 ? "i" : "") +
                    (spoken.contains("deleted") ? "d" : "") + ' ';
        }
        return text;
    }
    void choose(int row, int column, int lastRow, int lastColumn) {
        auto const& model = *matrix().model();
        matrix().selectionModel()->setCurrentIndex(model.index(row, lastColumn),
                                                   QItemSelectionModel::NoUpdate);
        matrix().selectionModel()->select(
            QItemSelection(model.index(row, column), model.index(lastRow, lastColumn)),
            QItemSelectionModel::ClearAndSelect);
    }
    /// "light/layer" of each selected cell, that of the current one in brackets.
    [[nodiscard]] std::string chosen() {
        settle();
        QAbstractItemModel const& model = *matrix().model();
        QStringList cells;
        for (QModelIndex const& cell : matrix().selectionModel()->selectedIndexes()) {
            QString const name =
                model.headerData(cell.row(), Qt::Vertical, Qt::AccessibleTextRole).toString() +
                '/' + model.headerData(cell.column(), Qt::Horizontal).toString();
            cells += cell == matrix().currentIndex() ? '[' + name + ']' : name;
        }
        cells.sort();
        return cells.join(' ').toStdString();
    }
    void space() {
        matrix().setFocus();
        QTest::keyClick(&matrix(), Qt::Key_Space);
    }
};

// Floor Lamp (Lamp Bulb), Lights (Key, Fill, Rim, Accents (Shelf Spot, Window Portal)); the last
// is not listed.
char const* const atFirst = "..x ..x --. x.. x.. x.. .x. .x. .x. ";

} // namespace

TEST_F(LightsTest, TheMatrixMovesLightsGroupsAndRangesAsOneEntryEach) {
    QAbstractItemModelTester const tester(matrix().model(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    window.showPanel("matrix");
    struct Step {
        char const* what;
        std::array<int, 4> range; ///< row, column, last row, last column
        char const* after;
    };
    constexpr Step steps[] = {
        {"a light", {3, 1, 3, 1}, "..x ..x --. .x. x.. x.. .x. .x. .x. "},
        {"a group that is partly in", {2, 1, 2, 1}, "..x ..x .x. .x. .x. .x. .x. .x. .x. "},
        {"a group and lights in it", {2, 2, 4, 2}, "..x ..x ..x ..x ..x ..x ..x ..x .x. "},
        {"a range over columns, out", {4, 0, 5, 2}, "..x ..x -.- ..x x.. x.. ..x ..x .x. "},
        {"a group, out", {6, 2, 6, 2}, "..x ..x -.- ..x x.. x.. x.. x.. .x. "},
    };
    for (char const* const flags : {"0", "1"}) { // on layers that are edited by what they leave out
        for (char const* const layer : {"Default", "Accent", "Practical"}) {
            run(std::string("lightlayer flags ") + layer + ' ' + flags);
        }
        ASSERT_EQ(rows(), atFirst);
        for (Step const& step : steps) {
            int const entries = stack().count();
            auto const [row, column, lastRow, lastColumn] = step.range;
            choose(row, column, lastRow, lastColumn);
            space();
            EXPECT_EQ(rows(), step.after) << step.what;
            EXPECT_EQ(stack().count(), entries + 1) << step.what;
        }
        EXPECT_EQ(stack().text(1).toStdString(), "Put 2 Lights into Layer (Accent)");
        choose(3, 2, 3, 2);
        space();
        EXPECT_EQ(stack().text(5).toStdString(), "Put a Light into Layer (Default)");
        stack().goTo(0);
        EXPECT_EQ(rows(), atFirst) << "each light is back where it was";
        stack().clear();
    }
    // What changes nothing is no entry: out of the first layer, and the light that is not listed.
    choose(4, 0, 4, 0);
    space();
    EXPECT_EQ(window.statusBar()->currentMessage(),
              "A light is always in a layer. Put it into another one.");
    choose(8, 2, 8, 2);
    space();
    EXPECT_FALSE(matrix().model()->setData(matrix().model()->index(8, 2), 2, Qt::CheckStateRole));
    EXPECT_EQ(stack().count(), 0);

    // A click on the box of a cell, and what is shown is what a group stands for.
    QRect const cell = matrix().visualRect(matrix().model()->index(3, 2));
    QTest::mouseClick(matrix().viewport(), Qt::LeftButton, {}, cell.center());
    EXPECT_EQ(rows(), "..x ..x --- ..x x.. x.. .x. .x. .x. ");
    find<QLineEdit>("lightFilter").setText("ri");
    EXPECT_EQ(rows(), "x.. x.. ") << "Lights, Rim Light";
    choose(0, 1, 0, 1);
    space();
    find<QLineEdit>("lightFilter").clear();
    EXPECT_EQ(rows(), "..x ..x --- ..x x.. .x. .x. .x. .x. ");
    for (char const* const layer : {"Default", "Accent", "Practical"}) {
        run(std::string("lightlayer flags ") + layer + " 0");
    }
}

TEST_F(LightsTest, WhatIsSelectedInTheMatrixStaysSoWhateverComesAndGoesAroundIt) {
    scratch = true; // lights and layers cannot be taken back
    QAbstractItemModelTester const tester(matrix().model(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    QSignalSpy const resets(matrix().model(), &QAbstractItemModel::modelReset);
    auto& items = document.host().renderer().items();
    run("lightlayer new Fourth");
    choose(3, 2, 4, 2);
    ASSERT_EQ(chosen(), "Fill Light/Practical [Key Light/Practical]");
    run("lightlayer delete Accent");
    EXPECT_EQ(rows(), ".x. .x. x.. x.. x.. x.. x.. x.. x.. ");
    EXPECT_EQ(chosen(), "Fill Light/Practical [Key Light/Practical]");
    stack().undo();
    run("lightlayer name Practical Lamps");
    items.addLight("Spot", items.find("Floor Lamp"));
    items.addLight("Top");
    run("light assign Lamps Spot \"Rim Light\""); // by which the window hears of them
    EXPECT_EQ(rows(), "..x. ..x. ..x. ---. x... x... ..x. .x.. .x.. x... x... ");
    EXPECT_EQ(chosen(), "Fill Light/Lamps [Key Light/Lamps]");
    find<QLineEdit>("lightFilter").setText("e"); // Key Light, Shelf Spot
    EXPECT_EQ(rows(), "--.. x... .x.. .x.. ");
    EXPECT_EQ(chosen(), "[Key Light/Lamps]");
    find<QLineEdit>("lightFilter").clear();
    EXPECT_EQ(chosen(), "[Key Light/Lamps]");
    EXPECT_EQ(resets.count(), 0);
}

TEST_F(LightsTest, LayersAreMadeRenamedInvertedDeletedAndRestored) {
    scratch = true; // a layer that was made keeps its place as a deleted one
    QAbstractItemModelTester const tester(list().model(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    auto& model = *list().model();
    auto const name = [&](int row, char const* text) {
        model.setData(model.index(row, 0), text, Qt::EditRole);
    };
    std::string const first = "Default 3 Accent 2 Practical 1 ";
    ASSERT_EQ(layers(), first);
    name(1, "Spots");
    name(1, "Spots"); // nothing to do
    name(2, "Spots"); // taken: numbered
    name(2, "");
    EXPECT_TRUE(window.panel("lightlayers")->select("Spots"));
    model.setData(model.index(1, 1), Qt::Checked, Qt::CheckStateRole);
    EXPECT_EQ(layers(), "Default 3 Spots 2i Spots 1 1 ");
    find<QAction>("duplicateLightLayer").trigger();
    EXPECT_EQ(layers(), "Default 3 Spots 2i Spots 1 1 Spots 2 0i ");
    choose(3, 0, 4, 0);
    find<QAction>("assignLights").trigger(); // into the one that is new
    find<QAction>("moveLightsToNewLayer").trigger();
    EXPECT_EQ(layers(), "Default 1 Spots 2i Spots 1 1 Spots 2 0i New Layer 2 ");
    EXPECT_TRUE(window.panel("lightlayers")->select("Spots"));
    find<QAction>("deleteLightLayer").trigger();
    EXPECT_EQ(layers(), "Default 3 Spots 1 1 Spots 2 0i New Layer 2 ");
    find<QToolButton>("showDeletedLightLayers").setChecked(true);
    EXPECT_EQ(layers(), "Default 3 Spots 0id Spots 1 1 Spots 2 0i New Layer 2 ");
    window.panel("lightlayers")->select("Spots");
    find<QAction>("deleteLightLayer").trigger();
    EXPECT_EQ(layers(), "Default 3 Spots 0i Spots 1 1 Spots 2 0i New Layer 2 ");
    window.panel("lightlayers")->select("Default");
    find<QAction>("deleteLightLayer").trigger();
    EXPECT_EQ(history(), "Rename Light Layer (Spots);Rename Light Layer (Spots 1);"
                         "Set Light Layer Flags (Spots);Duplicate Light Layer (Spots);"
                         "Put 2 Lights into Layer (Spots 2);Move Lights to New Layer;"
                         "Delete Light Layer (Spots);Restore Light Layer (Spots);|");
    std::string const all = dump();
    stack().goTo(0);
    find<QToolButton>("showDeletedLightLayers").setChecked(false);
    EXPECT_EQ(layers(), first);
    stack().goTo(8);
    EXPECT_EQ(dump(), all);
    find<QAction>("newLightLayer").trigger();
    EXPECT_EQ(layers().substr(layers().size() - 8), "Layer 0 ");

    // There is no further place: what would need one says so.
    for (int i = 0; i < 32; ++i) {
        find<QAction>("newLightLayer").trigger();
        settle();
    }
    EXPECT_EQ(stack().count(), 8 + 27);
    for (char const* const action :
         {"newLightLayer", "duplicateLightLayer", "moveLightsToNewLayer"}) {
        EXPECT_FALSE(find<QAction>(action).isEnabled()) << action;
        EXPECT_TRUE(find<QAction>(action).toolTip().contains("32 light layers at most")) << action;
    }
}
