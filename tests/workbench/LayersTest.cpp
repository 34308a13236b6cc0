#include "workbench/WindowScene.h"
#include "workbench/painting/Canvas.h"
#include "workbench/painting/PaintLayerModel.h"
#include "zsg/painting/IPainterSurface.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QMimeData>
#include <QTest>
#include <QTreeView>

#include <random>

using namespace workbench;

namespace {

class LayersTest : public WindowScene {
protected:
    void SetUp() override {
        WindowScene::SetUp();
        scratch = true;
        run("surface new 128");
        for (char const* const name : {"A", "B", "C", "D", "E", "F"}) {
            run("layer new 0");
            run(std::string("layer name 0 ") + name);
        }
        stack().clear();
        window.showPanel("layers");
        settle();
    }
    QTreeView& view() { return find<QTreeView>("layerList"); }
    PaintLayerModel& model() { return *static_cast<PaintLayerModel*>(view().model()); }
    /// Names from the top: a star for the one that is painted on, in brackets the hidden ones.
    static std::string rows(PaintLayerModel const& model) {
        std::string text;
        for (int row = 0; row < model.rowCount(); ++row) {
            bool const shown =
                model.index(row, PaintLayerModel::EyeColumn).data(Qt::CheckStateRole).toInt() ==
                Qt::Checked;
            text += shown ? "" : "(";
            QString const name =
                model.index(row, PaintLayerModel::NameColumn).data(Qt::EditRole).toString();
            text += name.isEmpty() ? "-" : name.toStdString();
            text += row == model.currentRow() ? "*" : "";
            text += shown ? "" : ")";
        }
        return text;
    }
    std::string rows() {
        settle();
        return rows(model());
    }
    QPoint eye(int row) {
        return view().visualRect(model().index(row, PaintLayerModel::EyeColumn)).center();
    }
};

} // namespace

TEST_F(LayersTest, EditsAreEntriesThatUndoBringsBack) {
    std::string const start = rows();
    EXPECT_EQ(start, "F*EDCBA-");
    struct Row {
        char const* what;
        std::function<void()> edit;
        char const* after;
        char const* entries;
    };
    auto const drop = [this](int from, int before) {
        std::unique_ptr<QMimeData> const mime(model().mimeData({model().index(from, 1)}));
        model().dropMimeData(mime.get(), Qt::MoveAction, before, 0, {});
    };
    Row const table[] = {
        {"up", [&] { drop(4, 1); }, "F*BEDCA-", "3D Paint move layer;|"},
        {"down", [&] { drop(0, 4); }, "EDCF*BA-", "3D Paint move layer;|"},
        {"one down", [&] { find<QAction>("lowerLayer").trigger(); }, "EF*DCBA-",
         "3D Paint move layer;|"},
        {"to the end", [&] { drop(1, -1); }, "F*DCBA-E", "3D Paint move layer;|"},
        {"beside itself", [&] { drop(2, 3); }, "F*EDCBA-", "|"},
        {"above all", [&] { find<QAction>("raiseLayer").trigger(); }, "F*EDCBA-", "|"},
        {"new", [&] { find<QAction>("newLayer").trigger(); }, "Layer 1*FEDCBA-",
         "3D Paint add layer;|"},
        {"delete",
         [&] {
             view().setCurrentIndex(model().index(2, 1));
             find<QAction>("deleteLayer").trigger();
         },
         "FE*CBA-", "3D Paint delete layer;|"},
        {"rename", [&] { model().setData(model().index(1, 1), "Y", Qt::EditRole); }, "F*YDCBA-",
         "3D Paint change layer name;|"},
        {"same name", [&] { model().setData(model().index(1, 1), "E", Qt::EditRole); }, "F*EDCBA-",
         "|"},
        {"mode", [&] { model().setData(model().index(1, 2), 1, Qt::EditRole); }, "F*EDCBA-",
         "3D Paint change layer blend mode;|"},
        {"background",
         [&] {
             model().setBackground(1, {1, 0, 0, 1});
             model().setBackground(2, {0, 1, 0, 1});
         },
         "F*EDCBA-", "3D Paint change layer background;3D Paint change layer background;|"},
    };
    for (Row const& row : table) {
        std::string const dumpBefore = document.host().dump();
        row.edit();
        EXPECT_EQ(rows(), row.after) << row.what;
        EXPECT_EQ(history(), row.entries) << row.what;
        while (stack().canUndo()) {
            stack().undo();
        }
        settle();
        model().setCurrentRow(0);
        EXPECT_EQ(rows(), start) << row.what;
        if (std::string(row.what) != "new") { // which stays in the list, deleted
            EXPECT_TRUE(document.host().dump() == dumpBefore) << row.what;
        }
        stack().clear();
    }
}

TEST_F(LayersTest, DraggingOverEyesIsOneEntryAndEscapeGivesUp) {
    QWidget* const viewport = view().viewport();
    model().setVisible({3}, false);
    settle();
    auto const over = [&](int from, int to) {
        QTest::mousePress(viewport, Qt::LeftButton, {}, eye(from));
        QTest::mouseMove(viewport, eye(to));
    };
    over(1, 5); // a fast hand skips the rows between
    EXPECT_EQ(rows(), "F*(E)(D)(C)(B)(A)-");
    EXPECT_EQ(stack().count(), 1);
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, eye(5));
    EXPECT_EQ(rows(), "F*(E)(D)(C)(B)(A)-");
    EXPECT_EQ(stack().text(1), "Hide Layers");
    stack().undo();
    EXPECT_EQ(rows(), "F*ED(C)BA-");
    over(3, 0); // the first one says what becomes of all
    QTest::keyClick(viewport, Qt::Key_Escape);
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, eye(0));
    EXPECT_EQ(rows(), "F*ED(C)BA-");
    EXPECT_EQ(stack().index(), 1);
    over(2, 2); // a click
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, eye(2));
    EXPECT_EQ(rows(), "F*E(D)(C)BA-");
    over(0, 1);
    find<QAction>("undo").trigger(); // ends it, then takes it back
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, eye(1));
    EXPECT_EQ(rows(), "F*E(D)(C)BA-");
    EXPECT_EQ(stack().text(stack().index()), "Hide Layers");
}

TEST_F(LayersTest, FollowsWhateverChangesThem) {
    QAbstractItemModelTester const tester(&model(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    auto& canvas = *window.findChild<Canvas*>();
    std::mt19937 random(99);
    for (int i = 0; i < 300; ++i) {
        zsg::IPainterSurface& surface = *canvas.surface();
        auto const any = [&] { return static_cast<unsigned>(random() % surface.layers().size()); };
        switch (random() % 8) {
        case 0:
            surface.addLayer(static_cast<int>(any()));
            break;
        case 1:
            surface.setLayerDeleted(any(), true);
            break;
        case 2:
            surface.moveLayer(any(), any());
            break;
        case 3:
            surface.setLayerVisibility(any(), random() % 2 == 0);
            break;
        case 4:
            model().move(static_cast<int>(any()), static_cast<int>(any()));
            break;
        case 5:
            stack().redo();
            break;
        default:
            stack().undo();
        }
        std::string const shown = rows();
        ASSERT_EQ(shown, rows(PaintLayerModel(scene(), canvas))) << i;
    }
}
