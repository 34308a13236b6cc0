#include "workbench/WindowScene.h"
#include "workbench/colors/ChannelSlider.h"
#include "workbench/scene/expression.h"
#include "workbench/values/FieldBinding.h"
#include "workbench/values/NumberSpin.h"
#include "workbench/values/ParameterRows.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QStatusBar>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>

#include <set>
#include <tuple>

using namespace workbench;

namespace {

class ParametersTest : public WindowScene {
protected:
    void SetUp() override {
        WindowScene::SetUp();
        window.showPanel("parameters");
        settle();
    }

    QWidget& field(char const* name) { return find<QWidget>(name); }
    NumberSpin& spin(char const* name) { return *field(name).findChild<NumberSpin*>(); }
    ChannelSlider* bar(char const* name) { return field(name).findChild<ChannelSlider*>(); }
    /// What the console sees.
    std::string shown(std::string const& name) { return run("value show " + name); }
};

} // namespace

TEST_F(ParametersTest, HintsLimitsAndFlagsMakeTheFields) {
    struct Row {
        char const* name;
        double atEnd; ///< what the far end of the bar gives; 0 for a plain field
        char const* suffix;
    };
    Row const rows[] = {
        {"size", 10, ""},       {"opacity", 100, ""},         {"steps", 8, ""},
        {"broken", 0, ""},      {"temperature", 12000, " K"}, {"angle", 0, "°"},
        {"percent", 100, " %"},
    };
    for (Row const& row : rows) {
        ChannelSlider* const slider = bar(row.name);
        EXPECT_EQ(slider != nullptr, row.atEnd != 0) << row.name;
        EXPECT_EQ(spin(row.name).suffix(), QString(row.suffix)) << row.name;
        if (slider) {
            slider->setFocus();
            QTest::keyClick(slider, Qt::Key_End);
            QTest::qWait(1);
            EXPECT_EQ(spin(row.name).value(), row.atEnd) << row.name;
        }
    }
    QTest::keyClick(bar("steps"), Qt::Key_Left);
    EXPECT_EQ(spin("steps").value(), 7) << "a key is a whole number, however long the bar";
    EXPECT_FALSE(field("locked").isEnabled());
    EXPECT_EQ(window.panel("parameters")->rowCount(), 14);
    scene().endDrags();
    EXPECT_EQ(history(), "Set Size;Set Opacity;Set Steps;Set Temperature;Set Percent;Set Steps;|");
    EXPECT_NE(run("param list").find("Float 12000"), std::string::npos);
}

TEST_F(ParametersTest, NumbersMayBeCalculated) {
    QLocale const german(QLocale::German);
    std::tuple<char const*, QLocale, double> const rows[] = {
        {"255/3", QLocale::c(), 85},      {" 2 + 3*-(1 - .5) ", QLocale::c(), 0.5},
        {"1e2-1e-1", QLocale::c(), 99.9}, {"1,5*(2+4)", german, 9},
        {"1.5+1", german, 2.5}, // as in files
        {"--2", QLocale::c(), 2},
    };
    for (auto const& [text, locale, value] : rows) {
        EXPECT_EQ(evaluate(text, locale), value) << text;
    }
    QString const deep = QString(5000, '(') + '1' + QString(5000, ')');
    for (QString const& text :
         {QString(), QString("1+"), QString("(1"), QString("1)"), QString("1/0"), QString("0/0"),
          QString("2 3"), QString("*2"), deep}) {
        EXPECT_FALSE(evaluate(text, german)) << text.left(20).toStdString();
    }
    type(spin("size"), "(1+2)*4");
    type(spin("size"), "12*(1");
    EXPECT_EQ(window.statusBar()->currentMessage(), "12*(1 is no number and no calculation.");
    EXPECT_EQ(spin("size").value(), 12) << "the number before";
    type(spin("steps"), "7/2");
    EXPECT_EQ(spin("steps").value(), 4) << "the nearest whole number";
    EXPECT_NE(run("param list").find("Integer 4"), std::string::npos);
    EXPECT_EQ(history(), "Set Size;Set Steps;|");
}

TEST_F(ParametersTest, AnEditIsOneEntryAndOnlyAnEditIsOne) {
    NumberSpin& size = spin("size");
    QTest::mouseClick(bar("size"), Qt::LeftButton, {}, QPoint(50, 5));
    type(size, size.text());
    EXPECT_EQ(history(), "|") << "a press, and the same number again";
    QTest::mousePress(bar("size"), Qt::LeftButton, {}, QPoint(5, 5));
    for (int x = 10; x < 60; x += 5) {
        QTest::mouseMove(bar("size"), QPoint(x, 5));
        QTest::qWait(4);
    }
    QTest::mouseRelease(bar("size"), Qt::LeftButton, {}, QPoint(60, 5));
    EXPECT_EQ(history(), "Set Size;|");
    type(size, "123.25");
    EXPECT_NE(run("param list").find("'size', Float 123.25"), std::string::npos) << "beyond limits";
    EXPECT_EQ(history(), "Set Size;Set Size;|") << "the drag took nothing more in";
    find<QAction>("undo").trigger();
    find<QAction>("undo").trigger();
    settle();
    EXPECT_EQ(size.value(), 0);
    EXPECT_EQ(bar("size")->value(), 0) << "the field follows the history";

    // By its name, and given up.
    QLabel* label = nullptr;
    for (QLabel* const candidate : window.panel("parameters")->findChildren<QLabel*>()) {
        label = candidate->text() == "Opacity" ? candidate : label;
    }
    ASSERT_NE(label, nullptr);
    QTest::mousePress(label, Qt::LeftButton, {}, QPoint(2, 5));
    QTest::mouseMove(label, QPoint(40, 5));
    EXPECT_TRUE(QTest::qWaitFor([this] { return stack().index() > 0; }));
    EXPECT_GT(spin("opacity").value(), 0);
    QTest::keyClick(label, Qt::Key_Escape);
    settle();
    EXPECT_EQ(spin("opacity").value(), 0);
    EXPECT_EQ(history(), "|") << "as if it had never been";
    QTest::mouseRelease(label, Qt::LeftButton);

    size.clearFocus();
    QWheelEvent wheel(QPointF(5, 5), size.mapToGlobal(QPointF(5, 5)), {}, QPoint(0, 120), {}, {},
                      Qt::NoScrollPhase, false);
    wheel.ignore();
    QCoreApplication::sendEvent(&size, &wheel);
    EXPECT_FALSE(wheel.isAccepted()) << "without the focus the panel scrolls";

    // What has no room in a row has a window of its own.
    field("weave").findChild<QToolButton*>()->click();
    settle();
    field("weave").findChild<QToolButton*>("weaveMake")->click();
    settle();
    EXPECT_EQ(stack().text(0), "Set Weave");
    EXPECT_EQ(field("weave").findChild<QLabel*>()->text(), "2 × 2 crossings");
    stack().undo();

    type(size, "2.5");
    auto* const binding = field("size").findChild<FieldBinding*>();
    EXPECT_TRUE(binding->isChanged());
    binding->reset();
    EXPECT_EQ(size.value(), 0);
    EXPECT_FALSE(binding->isChanged());
}

TEST_F(ParametersTest, OfSeveralVectorsOnlyWhatIsTouchedBecomesTheSame) {
    run("value new first Float3 1 2 3");
    run("value new second Float3 10 20 30");
    auto& subjects = find<QListWidget>("parameterSubjects");
    subjects.clearSelection();
    for (int const row : {1, 2}) {
        subjects.item(row)->setSelected(true);
    }
    auto const spins = window.panel("parameters")->findChildren<NumberSpin*>();
    ASSERT_EQ(spins.size(), 3);
    type(*spins[0], "7");
    EXPECT_EQ(shown("first") + shown("second"), "  Float3 <7, 2, 3>\n  Float3 <7, 20, 30>\n");
    type(*spins[2], "-1");
    EXPECT_EQ(shown("first") + shown("second"), "  Float3 <7, 2, -1>\n  Float3 <7, 20, -1>\n");
    run("undo all");
}

TEST_F(ParametersTest, SeveralValuesAreEditedAsOne) {
    run("value new first Float 1.5");
    run("value new second Float 2");
    run("value new third Boolean on");
    auto& subjects = find<QListWidget>("parameterSubjects");
    subjects.clearSelection();
    for (int const row : {1, 2}) {
        subjects.item(row)->setSelected(true);
    }
    EXPECT_EQ(spin("value").text(), "mixed");
    scene().endDrags();
    EXPECT_EQ(history(), "|") << "looking is no edit";
    type(spin("value"), "7.125");
    EXPECT_EQ(history(), "Set first;|");
    EXPECT_EQ(shown("first") + shown("second"), "  Float 7.125\n  Float 7.125\n");
    stack().undo();
    EXPECT_EQ(shown("first") + shown("second"), "  Float 1.5\n  Float 2\n");
    EXPECT_EQ(spin("value").text(), "mixed");
    subjects.item(3)->setSelected(true);
    EXPECT_EQ(window.panel("parameters")->rowCount(), 0) << "a truth has nothing in common";
    run("value set first 9");
    subjects.item(3)->setSelected(false);
    subjects.item(2)->setSelected(false);
    EXPECT_EQ(spin("value").value(), 9);
    run("value delete first");
    EXPECT_EQ(subjects.findItems("first", Qt::MatchExactly).size(), 0);
}
