#include "workbench/ValuesScene.h"
#include "workbench/values/CurvePlot.h"
#include "workbench/values/GradientStrip.h"
#include "workbench/values/NumberSpin.h"
#include "workbench/values/WeaveGrid.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QMouseEvent>
#include <QScrollBar>
#include <QStatusBar>
#include <QTest>
#include <QToolButton>

using namespace workbench;

namespace {

class ValuesTest : public ValuesScene {
protected:
    [[nodiscard]] std::string said() { return window.statusBar()->currentMessage().toStdString(); }

    /// Presses at the first place, moves to each of the others, and lets go at the last.
    void drag(QWidget& widget, std::vector<QPointF> const& places,
              Qt::MouseButton button = Qt::LeftButton) {
        QTest::mousePress(&widget, button, {}, places.front().toPoint());
        for (QPointF const& place : places) {
            QMouseEvent move(QEvent::MouseMove, place, widget.mapToGlobal(place), Qt::NoButton,
                             button, {});
            QCoreApplication::sendEvent(&widget, &move);
            QTest::qWait(5);
        }
        QTest::mouseRelease(&widget, button, {}, places.back().toPoint());
        settle();
    }
};

} // namespace

TEST_F(ValuesTest, AWeaveIsPaintedInOneEntry) {
    run("weave new cloth empty 24 3");
    std::string const before = run("weave show cloth");
    choose("cloth");
    auto& grid = find<WeaveGrid>("weaveGrid");
    auto const at = [&](int x, int y) { return QPointF(grid.cellRect({x, y}).center()); };
    drag(*grid.viewport(), {at(1, 1), at(5, 1), at(20, 1)}); // faster than the cells pass
    EXPECT_EQ(history(), "Set cloth;|");
    std::string const painted = run("weave show cloth");
    EXPECT_NE(painted.find("##" + QString("..").repeated(20).toStdString() + "######"),
              std::string::npos)
        << painted;
    stack().undo();
    EXPECT_EQ(run("weave show cloth"), before);
    stack().redo();
    settle();
    drag(*grid.viewport(), {at(1, 1), at(20, 1)}, Qt::RightButton);
    EXPECT_EQ(run("weave show cloth"), before) << "the other button takes it back";

    // A press is a crossing; beyond the edge is nothing; Escape gives up.
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, at(0, 0).toPoint());
    drag(*grid.viewport(), {at(23, 2), at(30, 2)});
    EXPECT_EQ(run("weave show cloth").substr(0, 6), "  ..##");
    int const entries = stack().count();
    QTest::mousePress(grid.viewport(), Qt::LeftButton, {}, at(3, 0).toPoint());
    EXPECT_TRUE(QTest::qWaitFor([&] { return stack().count() > entries; }));
    QTest::keyClick(grid.viewport(), Qt::Key_Escape);
    QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, at(3, 0).toPoint());
    EXPECT_EQ(stack().count(), entries);
    EXPECT_EQ(grid.weave().get(3, 0), zsg::WeavePattern::Warp);

    grid.setFocus();
    QTest::keyClick(&grid, Qt::Key_Right);
    QTest::keyClick(&grid, Qt::Key_Space);
    EXPECT_FALSE(grid.accessibleDescription().isEmpty());
    find<QComboBox>("weaveGenerator").setCurrentIndex(2);
    type(find<ExpressionSpin>("weaveFirst"), "2*2.5");
    find<QToolButton>("weaveMake").click();
    run("weave new satin satin 5 2");
    EXPECT_EQ(run("weave equal cloth satin"), "equal\n");
    type(find<ExpressionSpin>("weaveWarps"), "39/4"); // to the nearest whole number
    run("weave size satin 10 5");
    EXPECT_EQ(run("weave equal cloth satin"), "equal\n");
    find<NumberSpin>("warpWidth").setValue(0.25);
    scene().endDrags();
    EXPECT_NE(run("weave show cloth").find("warp width 0.25"), std::string::npos);

    // Through the clipboard, and a file.
    find<QAction>("copyValue").trigger();
    choose("satin");
    find<QAction>("pasteValue").trigger();
    EXPECT_EQ(run("weave equal cloth satin"), "equal\n");
    QApplication::clipboard()->setText("nothing");
    find<QAction>("pasteValue").trigger();
    EXPECT_EQ(said(), "The clipboard holds no weave.");
    EXPECT_TRUE(panel().save(inFolder("kept.json")));
    EXPECT_TRUE(panel().load(inFolder("kept.json")));
    EXPECT_EQ(run("weave equal cloth kept"), "equal\n");
    EXPECT_FALSE(panel().save(inFolder("nowhere/kept.json")));
}

TEST_F(ValuesTest, AWeaveOfAnySizeScrolls) {
    run("weave new sail empty 4096 4096");
    choose("sail");
    auto& grid = find<WeaveGrid>("weaveGrid");
    for (int i = 0; i < 20; ++i) {
        grid.zoom(-1);
    }
    grid.setFocus();
    grid.horizontalScrollBar()->setValue(grid.horizontalScrollBar()->maximum());
    grid.verticalScrollBar()->setValue(grid.verticalScrollBar()->maximum());
    QRect const last = grid.cellRect({4095, 4095});
    EXPECT_TRUE(grid.viewport()->rect().contains(last));
    EXPECT_FALSE(grid.grab().isNull());
    drag(*grid.viewport(), {last.center(), last.center() - QPoint(2, 0)});
    EXPECT_EQ(grid.weave().get(4095, 4095), zsg::WeavePattern::Weft);
    EXPECT_EQ(history(), "Set sail;|");
}

TEST_F(ValuesTest, StopsOfAGradient) {
    find<QAction>("new-1").trigger();
    settle();
    auto& strip = find<GradientStrip>("gradientStrip");
    std::string const fresh = run("gradient show gradient");
    drag(strip, {strip.handleOf(0), strip.handleOf(0.25F), strip.handleOf(0.5F)});
    EXPECT_EQ(history(), "New Value gradient;Set gradient;|");
    EXPECT_NEAR(double(strip.gradient().colorStop(0).getLocation()), 0.5, 0.01);
    QTest::mouseClick(&strip, Qt::LeftButton, {}, strip.handleOf(1).toPoint());
    EXPECT_EQ(stack().count(), 2) << "a press only selects";
    strip.setFocus();
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(&strip, Qt::Key_Left, Qt::ShiftModifier);
    }
    scene().endDrags();
    EXPECT_EQ(stack().count(), 3);
    EXPECT_NE(run("gradient show gradient").find("0.97 "), std::string::npos);
    QTest::keyClick(&strip, Qt::Key_Backtab);
    EXPECT_EQ(strip.current(), 0);
    auto& location = find<NumberSpin>("stopLocation");
    location.setValue(1.5);
    EXPECT_EQ(strip.current(), 1) << "it went past its neighbor";
    QTest::keyClick(&strip, Qt::Key_Delete);
    QTest::keyClick(&strip, Qt::Key_Delete);
    EXPECT_EQ(strip.current(), -1);
    scene().endDrags();
    QTest::mouseDClick(&strip, Qt::LeftButton, {}, strip.handleOf(0.5F).toPoint() - QPoint(0, 20));
    scene().endDrags();
    EXPECT_EQ(strip.gradient().getNStops(), 1U);
    stack().goTo(1);
    EXPECT_EQ(run("gradient show gradient"), fresh);
}

TEST_F(ValuesTest, KeysOfACurveStayInOrder) {
    find<QAction>("new-2").trigger();
    settle();
    auto& plot = find<CurvePlot>("curvePlot");
    plot.insertBeside();
    scene().endDrags();
    settle();
    using Part = CurvePlot::Part;
    auto const key = [&](int i) { return plot.onWidget(plot.place({i, Part::Key})); };
    QPointF const beyond = key(2) + QPointF(60, 0);
    drag(plot, {key(1), (key(1) + key(2)) / 2, beyond});
    EXPECT_EQ(plot.curve().keyAt(1).pos.x, plot.curve().keyAt(2).pos.x);
    EXPECT_EQ(said(), "A key has to stay between its neighbors.");
    stack().undo();
    settle();
    EXPECT_EQ(plot.curve().keyAt(1).pos.x, 0.5F);
    plot.setCurrent({1, Part::Out});
    plot.moveCurrent({0.2F, 0.9F});
    EXPECT_EQ(plot.curve().keyAt(1).out.x, 0.5F) << "a handle stays on its side";
    EXPECT_EQ(said(), "A handle has to stay on its side of the key.");
    // Every point can be reached by Tab, those at one place too.
    plot.setCurrent({0, Part::In});
    plot.setFocus();
    for (int i = 0; i < 8; ++i) {
        QTest::keyClick(&plot, Qt::Key_Tab);
    }
    EXPECT_TRUE((plot.current() == CurvePlot::Point{2, Part::Out}));
    QTest::keyClick(&plot, Qt::Key_Tab);
    EXPECT_FALSE(plot.hasFocus());
}
