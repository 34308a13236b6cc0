#include "workbench/CountingProxy.h"
#include "workbench/WindowScene.h"
#include "workbench/colors/ColorModel.h"
#include "workbench/colors/colorMime.h"
#include "zsg/colors/ColorController.h"
#include "zsg/colors/ColorDB.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QMimeData>
#include <QTest>
#include <QToolButton>
#include <QTreeView>

#include <initializer_list>
#include <random>

using namespace workbench;

namespace {

using ColorsTest = WindowScene;

std::string rows(QAbstractItemModel const& model) {
    std::string text;
    for (int row = 0; row < model.rowCount(); ++row) {
        for (int column = 0; column < model.columnCount(); ++column) {
            text += model.index(row, column).data().toString().toStdString() + ' ';
        }
        text += '\n';
    }
    return text;
}

std::string manyColors(int count) {
    std::string json = R"({"format":"zsg-scene","version":1,"colors":[)";
    for (int i = 1; i <= count; ++i) {
        json += (i == 1 ? "" : ",") + std::string(R"({"id":)") + std::to_string(i) +
                R"(,"name":"Colour )" + std::to_string(i) + R"(","value":[0.5,0.25,0.125,1]})";
    }
    return json + "]}";
}

} // namespace

TEST_F(ColorsTest, TilesListAndFilterAreOneSelection) {
    Panel& panel = *window.panel("colours");
    EXPECT_EQ(panel.rowCount(), 42);
    auto& grid = find<QListView>("colourGrid");
    auto& list = find<QTreeView>("colourList");
    auto& kind = find<QComboBox>("colourKind");
    EXPECT_TRUE(panel.select("Teal"));
    EXPECT_EQ(grid.currentIndex(), list.currentIndex());
    EXPECT_TRUE(list.selectionModel()->isRowSelected(grid.currentIndex().row(), {}));
    EXPECT_EQ(find<QLineEdit>("colourName").text(), "Teal");
    auto const usedBy = [&, &users = find<QListWidget>("colourUsers")] {
        std::string names;
        for (int i = 0; i < users.count(); ++i) {
            names += users.item(i)->text().toStdString() + ';';
        }
        return names;
    };
    EXPECT_EQ(usedBy(), "") << "no material is";
    EXPECT_TRUE(panel.select("Linen"));
    EXPECT_EQ(usedBy(), "Seat Fabric;Back Fabric;");
    EXPECT_TRUE(panel.select("Teal"));
    int const counts[] = {42, 37, 5};
    for (int i = 0; i < 3; ++i) {
        kind.setCurrentIndex(i);
        EXPECT_EQ(panel.rowCount(), counts[i]);
    }
    EXPECT_EQ(find<QLineEdit>("colourName").text(), "Teal") << "a search selects nothing else";
    kind.setCurrentIndex(0);
    find<QLineEdit>("colourFilter").setText("PLU");
    EXPECT_EQ(rows(*grid.model()), "Plum #dda0dd 0 \n");
    // Names come into the search and leave it as they change.
    run("color name Linen Plus");
    EXPECT_EQ(panel.rowCount(), 2);
    EXPECT_TRUE(panel.select("Plum"));
    run("color name Plum Prune");
    EXPECT_EQ(panel.rowCount(), 1);
    EXPECT_EQ(find<QLineEdit>("colourName").text(), "Prune") << "not the one beside it";
    EXPECT_FALSE(grid.currentIndex().isValid());
    find<QLineEdit>("colourFilter").clear();
    EXPECT_EQ(panel.rowCount(), 42);
    EXPECT_TRUE(list.selectionModel()->isRowSelected(grid.currentIndex().row(), {}));
    EXPECT_EQ(grid.currentIndex().data().toString(), "Prune") << "marked again where it is seen";

    grid.setCurrentIndex(grid.model()->index(0, 0));
    grid.setFocus();
    QTest::keyClick(&grid, Qt::Key_Right);
    EXPECT_EQ(grid.currentIndex().row(), 1);
    QTest::keyClick(&grid, Qt::Key_Down);
    EXPECT_GT(grid.currentIndex().row(), 2) << "down is the next line of tiles";
    QTest::keyClick(&grid, Qt::Key_Up);
    EXPECT_EQ(grid.currentIndex().row(), 1);
}

TEST_F(ColorsTest, NamesAreEditedInPlace) {
    auto& grid = find<QListView>("colourGrid");
    window.panel("colours")->select("Teal");
    grid.setFocus();
    find<QAction>("renameColour").trigger();
    auto* editor = grid.findChild<QLineEdit*>();
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->text(), "Teal");
    QTest::keyClicks(editor, "Petrol");
    emit grid.model()->dataChanged(grid.currentIndex(), grid.currentIndex());
    EXPECT_EQ(editor->text(), "Petrol") << "what is typed stays";
    QTest::keyClick(editor, Qt::Key_Return);
    settle();
    EXPECT_EQ(history(), "Set Color name (Petrol);|");
    EXPECT_EQ(grid.currentIndex().data().toString(), "Petrol");
    grid.model()->setData(grid.currentIndex(), "Petrol");
    EXPECT_EQ(stack().count(), 1) << "the same name is no edit";
    grid.model()->setData(grid.currentIndex(), "");
    settle();
    EXPECT_EQ(history(), "Set Color name (Petrol);Clear Color name;|");
    EXPECT_EQ(grid.currentIndex().data().toString(), "unnamed");
}

TEST_F(ColorsTest, SwatchesTravel) {
    scratch = true; // records that came in stay
    window.panel("colours")->select("Wheat");
    find<QAction>("copyColour").trigger();
    QMimeData const* copied = QApplication::clipboard()->mimeData();
    EXPECT_EQ(copied->text(), "Wheat #f5deb3");
    EXPECT_EQ(copied->colorData().value<QColor>(), QColor(0xf5, 0xde, 0xb3));
    auto const own = readColorMime(scene(), *copied);
    ASSERT_EQ(own.ids.size(), 1u);
    EXPECT_EQ(own.values[0].rgba(), scene().colorDB()->colorFromId(own.ids[0]).rgba());

    // To another scene, which uses that name for something else.
    Document second(copies());
    ASSERT_EQ(second.open(inFolder("scene.json")), "");
    MainWindow other(second);
    std::ostringstream out;
    second.runCommand("color set Wheat 1 0 0", out);
    ASSERT_GT(second.scene().colorDB()->totalSceneReferenceCount(own.ids[0]), 0u);
    EXPECT_TRUE(readColorMime(second.scene(), *copied).ids.empty());
    auto* const paste = other.findChild<QAction*>("pasteColour");
    std::string const before = second.host().renderer().dump();
    answer("Cancel");
    paste->trigger();
    EXPECT_EQ(asked, "The scene uses another colour with the name Wheat.");
    EXPECT_EQ(second.host().renderer().dump(), before);
    answer("Bring It in Renamed");
    paste->trigger();
    EXPECT_TRUE(other.panel("colours")->select("Wheat 1"));
    EXPECT_EQ(history(), "|") << "the first window has heard nothing";
    run("color name Teal Petrol");
    EXPECT_TRUE(other.panel("colours")->select("Teal")) << "nor the second";
    QLineEdit editor;
    editor.paste();
    EXPECT_EQ(editor.text(), "Wheat #f5deb3");

    QMimeData wrong;
    for (char const* const text : {"", "{", "[1]", R"({"colors":[1,{}]})", R"({"colors":{}})"}) {
        wrong.setData(colorMimeType(), text);
        EXPECT_TRUE(readColorMime(scene(), wrong).ids.empty()) << text;
    }
}

TEST_F(ColorsTest, FollowsWhateverIsEdited) {
    scratch = true;
    ColorModel model(scene());
    ColorModel filtered(scene());
    filtered.setFilter("1", ColorModel::Kind::All);
    using Tester = QAbstractItemModelTester;
    Tester const tester(&model, Tester::FailureReportingMode::Fatal);
    Tester const second(&filtered, Tester::FailureReportingMode::Fatal);
    std::mt19937 random(4711);
    for (int i = 0; i < 400; ++i) {
        auto const any = [&](auto const& ids) { return ids[random() % ids.size()]; };
        zsg::ColorController& controller = *scene().colorController();
        zsg::ColorDB& db = *scene().colorDB();
        switch (random() % 8) {
        case 0:
            stack().undo();
            break;
        case 1:
            stack().redo();
            break;
        case 2:
            controller.toggleMultiColor(any(db.colors()));
            break;
        case 3:
            static_cast<void>(db.clone(any(db.colors())));
            break;
        case 4:
            controller.setActiveSubColor(any(db.multiColors()), any(db.colors()));
            break;
        case 5:
            controller.addSubColors(any(db.multiColors()), {any(db.colors())}, -1, {});
            break;
        default:
            controller.setDisplayName(any(db.colors()), "N" + std::to_string(random() % 30));
        }
        if (random() % 3 == 0) {
            settle();
            ColorModel fresh(scene());
            ASSERT_EQ(rows(model), rows(fresh)) << i;
            fresh.setFilter("1", ColorModel::Kind::All);
            ASSERT_EQ(rows(filtered), rows(fresh)) << i;
        }
    }
}

TEST_F(ColorsTest, ALargeSceneCostsWhatIsSeen) {
    scratch = true;
    QFile file(inFolder("large.json"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray::fromStdString(manyColors(20'000)));
    file.close();
    ASSERT_EQ(document.open(inFolder("large.json")), "");
    settle();
    window.showPanel("colours");
    auto& grid = find<QListView>("colourGrid");
    auto& list = find<QTreeView>("colourList");
    auto& counting = *new CountingProxy(grid.model(), &window);
    for (QAbstractItemView* const view : std::initializer_list<QAbstractItemView*>{&grid, &list}) {
        view->setModel(&counting);
        find<QToolButton>("coloursAsList").setChecked(view == &list);
        settle();
        QSize const cell = view->visualRect(counting.index(0, 0, {})).size();
        QSize const seen = view->viewport()->size();
        int const cells =
            view == &list ? 3 * (seen.height() / cell.height() + 2)
                          : (seen.width() / cell.width() + 1) * (seen.height() / cell.height() + 2);
        counting.cells = counting.rows = 0;
        for (int i = 0; i < 100; ++i) {
            run("color set 3 0.1 0.2 0." + std::to_string(100 + i));
        }
        constexpr int roles = 9;
        EXPECT_LE(counting.cells, 100 * cells * roles);
        EXPECT_LT(counting.rows, 100 * 20'000 / 10) << "nothing lays 20,000 out again";
    }
    EXPECT_EQ(scene().colorDB()->colorName(nyx::ColorId(20'000)), "Colour 20000");

    ColorModel model(scene());
    model.setFilter("9999", ColorModel::Kind::All);
    EXPECT_TRUE(model.isSearching()) << "a slice at a time";
    for (int i = 0; i < 1000 && model.isSearching(); ++i) {
        settle();
    }
    EXPECT_EQ(model.rowCount(), 2);
}
