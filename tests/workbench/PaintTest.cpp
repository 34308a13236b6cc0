#include "support/sourceDir.h"
#include "workbench/WindowScene.h"
#include "workbench/app/HostCanvas.h"
#include "workbench/painting/PaintView.h"
#include "zsg/core/ISceneGraph.h"
#include "zsg/painting/IPainter.h"
#include "zsg/painting/IPainterManager.h"
#include "zsg/painting/IPainterSurface.h"

#include "nyxembedded/Painting.h"

#include <QAction>
#include <QComboBox>
#include <QPointingDevice>
#include <QTabletEvent>
#include <QTest>

using namespace workbench;

namespace {

class PaintTest : public WindowScene {
protected:
    void SetUp() override {
        WindowScene::SetUp();
        scratch = true; // surfaces cannot be undone; what is painted is compared here
        run("surface new 256");
        run("brush load " + sourceDir() + "/examples/brushes/marker.json");
        run("brush set color_color #c03020");
        run("brush apply");
        window.showPanel("picture");
        settleAll();
        start = composite();
    }
    void settleAll() {
        for (int i = 0; i < 3; ++i) {
            document.host().taskQueue().waitIdle();
            settle();
        }
    }
    std::vector<std::uint8_t> composite() {
        document.host().taskQueue().waitIdle();
        return document.host().renderer().painting().composite(canvas().surface()->id()).rgba;
    }
    HostCanvas& canvas() { return *window.findChild<HostCanvas*>(); }
    PaintView& view() { return find<PaintView>("paintView"); }
    QPoint at(double x, double y) { return view().fromTexel({x, y}).toPoint(); }
    void drag(QPoint const& from, QPoint const& to) {
        QTest::mousePress(&view(), Qt::LeftButton, {}, from);
        QTest::mouseMove(&view(), (from + to) / 2);
        QTest::mouseMove(&view(), to);
    }
    void pen(QEvent::Type type, QPointF const& at, double pressure, bool isEraser = false) {
        static QPointingDevice const tip("pen", 77, QInputDevice::DeviceType::Stylus,
                                         QPointingDevice::PointerType::Pen,
                                         QInputDevice::Capability::Pressure, 1, 1);
        static QPointingDevice const other("pen", 77, QInputDevice::DeviceType::Stylus,
                                           QPointingDevice::PointerType::Eraser,
                                           QInputDevice::Capability::Pressure, 1, 1);
        QTabletEvent event(type, isEraser ? &other : &tip, at, view().mapToGlobal(at), pressure, 0,
                           0, 0, 0, 0, {}, Qt::LeftButton,
                           type == QEvent::TabletRelease ? Qt::NoButton : Qt::LeftButton);
        QCoreApplication::sendEvent(&view(), &event);
        EXPECT_TRUE(event.isAccepted());
    }
    /// What the view shows at a texel.
    QColor seen(double x, double y) {
        settleAll();
        return view().grab().toImage().pixelColor(at(x, y));
    }

    std::vector<std::uint8_t> start;
};

} // namespace

TEST_F(PaintTest, AStrokeIsSeenWhileItIsMadeAndIsOneEntryOfTheSamePixels) {
    QColor const blank = seen(128, 128);
    drag(at(60, 128), at(200, 128));
    EXPECT_NE(seen(128, 128), blank); // before the release
    EXPECT_EQ(history(), "|");
    QTest::mousePress(&view(), Qt::MiddleButton, {}, at(200, 128)); // which would move the picture
    QTest::mouseRelease(&view(), Qt::LeftButton, {}, at(200, 128));
    settleAll();
    EXPECT_EQ(history(), "Paint;|");
    auto const painted = composite();
    QColor const color = seen(128, 128);
    run("undo");
    EXPECT_EQ(composite(), start);
    EXPECT_EQ(seen(128, 128), blank);
    run("redo");
    EXPECT_EQ(composite(), painted);
    EXPECT_EQ(seen(128, 128), color);

    // Escape takes off what was seen; undo in a stroke ends it first; losing the window keeps it.
    drag(at(60, 60), at(200, 60));
    QTest::keyClick(&view(), Qt::Key_Escape);
    QTest::mouseRelease(&view(), Qt::LeftButton, {}, at(200, 60));
    EXPECT_EQ(composite(), painted);
    EXPECT_EQ(history(), "Paint;|");
    drag(at(60, 60), at(200, 60));
    find<QAction>("undo").trigger();
    EXPECT_EQ(history(), "Paint;|Paint;");
    EXPECT_EQ(composite(), painted);
    drag(at(60, 60), at(200, 60));
    QEvent deactivated(QEvent::WindowDeactivate);
    QCoreApplication::sendEvent(&window, &deactivated);
    EXPECT_EQ(history(), "Paint;Paint;|");
    EXPECT_FALSE(canvas().isStroking());
    run("surface new 64"); // and follows the console, which names no event
    settleAll();
    EXPECT_EQ(find<QComboBox>("surfaces").count(), 2);
    EXPECT_EQ(seen(32, 32), blank);
}

TEST_F(PaintTest, APenPaintsByItsPressureAndItsOtherEndErases) {
    run("brush set basic_size_pen_pressure on");
    run("brush apply");
    find<QComboBox>("brushPresets").setFocus();
    pen(QEvent::TabletPress, at(40, 128), 0.5);
    EXPECT_TRUE(view().hasFocus()) << "Escape has to reach it";
    // What the system makes of the pen for programs that know mice only.
    QTest::mousePress(&view(), Qt::LeftButton, {}, at(128, 30));
    QTest::mouseMove(&view(), at(128, 220));
    QTest::mouseRelease(&view(), Qt::LeftButton, {}, at(128, 220));
    pen(QEvent::TabletMove, at(120, 128), 1);
    pen(QEvent::TabletMove, at(200, 128), 0.5);
    pen(QEvent::TabletMove, at(240, 200), 0); // lifted
    pen(QEvent::TabletRelease, at(240, 200), 0);
    settleAll();
    EXPECT_EQ(history(), "Paint;|");
    auto const pixels = document.host().renderer().painting().pixels(canvas().surface()->id(), 1);
    ASSERT_TRUE(pixels);
    EXPECT_GT(pixels->texel(120, 128)[3], 0);
    EXPECT_EQ(pixels->texel(128, 40)[3], 0);
    EXPECT_EQ(pixels->texel(235, 195)[3], 0);
    pen(QEvent::TabletPress, at(40, 128), 1, true);
    pen(QEvent::TabletMove, at(220, 128), 1, true);
    pen(QEvent::TabletRelease, at(220, 128), 0, true);
    settleAll();
    EXPECT_EQ(history(), "Paint;Erase;|");
    EXPECT_LT(composite()[(128 * 256 + 120) * 4 + 3], 80); // by as much as the brush paints
    pen(QEvent::TabletPress, at(40, 128), 1);
    QEvent deactivated(QEvent::WindowDeactivate);
    QCoreApplication::sendEvent(&window, &deactivated); // its release goes elsewhere
    drag(at(60, 60), at(100, 60));
    QTest::mouseRelease(&view(), Qt::LeftButton, {}, at(100, 60));
    EXPECT_EQ(history(), "Paint;Erase;Paint;Paint;|") << "the mouse is not locked out";
}

TEST_F(PaintTest, KeysMoveAPenAsWell) {
    view().setFocus();
    auto const press = [&](int key, Qt::KeyboardModifiers with = Qt::ControlModifier) {
        QTest::keyClick(&view(), Qt::Key(key), with);
    };
    press(Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(composite(), start) << "it is lifted";
    press(Qt::Key_Return, {});
    for (int i = 0; i < 4; ++i) {
        press(Qt::Key_Right);
    }
    press(Qt::Key_Return, {});
    settleAll();
    EXPECT_EQ(history(), "Paint;|");
    auto const painted = composite();
    EXPECT_GT(painted[(128 * 256 + 128) * 4 + 3], 0);
    press(Qt::Key_Return, {});
    press(Qt::Key_Down);
    press(Qt::Key_Escape, {});
    EXPECT_EQ(composite(), painted) << "given up";
}

TEST_F(PaintTest, RefusesWhereNothingWouldBeSeen) {
    QString said;
    QObject::connect(&scene(), &Scene::said, [&](QString const& text) { said = text; });
    auto const tryTo = [&] {
        drag(at(60, 60), at(100, 60));
        QTest::mouseRelease(&view(), Qt::LeftButton, {}, at(100, 60));
        settleAll();
        return said.toStdString();
    };
    run("layer visible 0 off");
    EXPECT_EQ(tryTo(), "The layer to paint on is hidden.");
    run("layer delete 0");
    EXPECT_EQ(tryTo(), "Choose a layer to paint on.");
    run("surface delete " + std::to_string(canvas().surface()->id().toUint()));
    EXPECT_EQ(canvas().surface(), nullptr);
    EXPECT_EQ(canvas().beginStroke(Canvas::Ink::Paint), "There is no surface to paint on.");
    EXPECT_EQ(history(), "3D Paint change layer visibility;3D Paint delete layer;|");
}

TEST_F(PaintTest, AThousandStrokesKeepTheHistoryWithinItsBudget) {
    constexpr std::size_t budget = 4u << 20;
    canvas().setHistoryBudget(budget);
    run("color name Teal Petrol"); // goes with the oldest
    for (int i = 0; i < 1000; ++i) {
        ASSERT_EQ(canvas().beginStroke(Canvas::Ink::Paint), "");
        float const x = static_cast<float>(i * 37 % 256);
        canvas().addSamples({{x, 0, 1}, {x, 255, 1}});
        canvas().endStroke();
        if (i % 20 == 19) {
            settleAll();
            ASSERT_LE(canvas().historyBytes(), budget);
        }
    }
    EXPECT_GT(canvas().historyBytes(), budget / 2);
    EXPECT_EQ(stack().limit(), 0);
    EXPECT_EQ(stack().cleanIndex(), -1);
    int const kept = stack().count();
    EXPECT_LT(kept, 300);
    for (int i = 0; i < kept; ++i) {
        ASSERT_TRUE(stack().undo());
    }
    EXPECT_FALSE(stack().canUndo());
}
