// What is typed and not confirmed counts when something else is done that takes no focus.

#include "workbench/ValuesScene.h"
#include "workbench/painting/PaintLayerModel.h"
#include "workbench/values/NumberSpin.h"

#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>
#include <QTreeView>

using namespace workbench;

namespace {

class TypingTest : public ValuesScene {
protected:
    void write(QAbstractSpinBox& field, QString const& text) {
        field.setFocus();
        field.selectAll();
        QTest::keyClicks(&field, text);
    }
    /// The editor that opens in a place of a list.
    template <class Editor>
    Editor& edit(QTreeView& list, int row, int column) {
        settle(); // the one before goes
        list.setCurrentIndex(list.model()->index(row, column));
        list.edit(list.currentIndex());
        auto* const editor = list.viewport()->findChild<Editor*>();
        if (!editor) {
            throw std::runtime_error("there is no editor");
        }
        editor->setFocus();
        return *editor;
    }
};

} // namespace

TEST_F(TypingTest, AButtonTakesWhatStandsInTheFields) {
    run("weave new cloth empty 4 4");
    choose("cloth");
    find<QComboBox>("weaveGenerator").setCurrentIndex(2);
    write(find<ExpressionSpin>("weaveFirst"), "7");
    QTest::mouseClick(&find<QToolButton>("weaveMake"), Qt::LeftButton);
    settle();
    EXPECT_EQ(find<ExpressionSpin>("weaveWarps").value(), 7) << "a satin of seven";
    EXPECT_TRUE(find<ExpressionSpin>("weaveFirst").hasFocus());
}

TEST_F(TypingTest, ARefreshLeavesWhatIsBeingTyped) {
    NumberSpin spin(NumberSpin::Kind::Single, &window);
    spin.show();
    spin.showNumber(0.7, false);
    write(spin, "0.75");
    spin.showNumber(0.7, false);
    EXPECT_EQ(spin.text(), "0.75");
    QTest::keyClick(&spin, Qt::Key_Return);
    EXPECT_EQ(spin.value(), 0.75);
    spin.showNumber(0.5, false);
    EXPECT_EQ(spin.value(), 0.5) << "an undo is shown, also where the focus is";
}

TEST_F(TypingTest, SavingAndClosingTakeWhatStandsInAnEditor) {
    scratch = true;
    run("surface new 64");
    window.showPanel("layers");
    settle();
    auto& list = find<QTreeView>("layerList");
    QTest::keyClicks(&edit<QLineEdit>(list, 0, PaintLayerModel::NameColumn), "Anna");
    EXPECT_TRUE(window.files().save());
    QFile file(inFolder("scene.json"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly) && file.readAll().contains("Anna"));
    auto& box = edit<QComboBox>(list, 0, PaintLayerModel::ModeColumn);
    box.setCurrentIndex(2);
    box.activated(2);
    EXPECT_EQ(history(), "3D Paint change layer name;3D Paint change layer blend mode;|");
    stack().undo();
    EXPECT_FALSE(window.isWindowModified());
    QTest::keyClicks(&edit<QLineEdit>(list, 0, PaintLayerModel::NameColumn), "Berta");
    answer("Cancel");
    EXPECT_FALSE(window.close()) << "there is something to save";
}
