#include "workbench/colors/ColorEditor.h"

#include "workbench/WindowScene.h"
#include "workbench/colors/ChannelSlider.h"
#include "workbench/colors/ColorWheel.h"
#include "zsg/colors/ColorController.h"
#include "zsg/colors/ColorDB.h"

#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QTest>

#include <cmath>
#include <functional>

using namespace workbench;

namespace {

class ColorEditorTest : public WindowScene {
protected:
    void SetUp() override {
        WindowScene::SetUp();
        choose("Teal");
    }

    void choose(char const* name) {
        ASSERT_TRUE(window.panel("colours")->select(name));
        settle();
    }

    [[nodiscard]] std::string valueOf(char const* name) {
        nyx::ColorId const id = document.host().renderer().colors().find(name);
        auto const record = document.host().renderer().colors().record(id);
        nyxColor_rgba const c = record ? record->value : nyxColor_rgba();
        return std::to_string(c.r) + ' ' + std::to_string(c.g) + ' ' + std::to_string(c.b);
    }

    ColorWheel& wheel() { return find<ColorWheel>("wheel"); }

    /// A point of the ring, in parts of a turn.
    QPoint onRing(double turns) {
        double const radius = std::min(wheel().width(), wheel().height()) / 2.0 * 0.9;
        QPointF const offset(std::cos(turns * 6.2831853), -std::sin(turns * 6.2831853));
        return (QRectF(wheel().rect()).center() + offset * radius).toPoint();
    }

    /// Acts, and waits until the history has changed so often by that.
    void expectPushes(int count, std::function<void()> const& act) {
        auto const watching =
            QObject::connect(&scene(), &Scene::historyChanged, [&count] { --count; });
        act();
        EXPECT_TRUE(QTest::qWaitFor([&count] { return count <= 0; }));
        QObject::disconnect(watching);
    }

    /// Presses on the ring and moves round it, faster than frames come.
    void dragHue(int moves = 20) {
        expectPushes(1, [&] {
            QTest::mousePress(&wheel(), Qt::LeftButton, {}, onRing(0));
            for (int i = 1; i <= moves; ++i) {
                QTest::mouseMove(&wheel(), onRing(i / 40.0));
            }
        });
    }
};

} // namespace

TEST_F(ColorEditorTest, ADragIsOneEntry) {
    std::string const before = valueOf("Teal");
    dragHue();
    EXPECT_EQ(history(), "Set Color;|") << "it shows while it lasts";
    QTest::mouseRelease(&wheel(), Qt::LeftButton, {}, onRing(0.5));
    choose("Linen");
    dragHue(3);
    QTest::mouseRelease(&wheel(), Qt::LeftButton, {}, onRing(0.1));
    EXPECT_EQ(history(), "Set Color;Set Color;|") << "the next colour is another step";
    std::string const after = valueOf("Teal");
    EXPECT_NE(after, before);
    stack().undo();
    EXPECT_EQ(valueOf("Teal"), after);

    // A press alone, of the wheel or of a bar, is nothing.
    stack().goTo(0);
    settle();
    QTest::mouseClick(&wheel(), Qt::LeftButton, {}, onRing(0.3));
    auto& hue = find<ChannelSlider>("hueSlider");
    QTest::mouseClick(&hue, Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(history(), "|Set Color;Set Color;") << "and drops nothing";
}

TEST_F(ColorEditorTest, EveryWayOutEndsTheDrag) {
    std::string const before = valueOf("Teal");
    dragHue();
    QTest::keyClick(&wheel(), Qt::Key_Escape);
    settle();
    EXPECT_EQ(history(), "|") << "given up: as if it had never been";
    EXPECT_EQ(valueOf("Teal"), before);
    QTest::mouseRelease(&wheel(), Qt::LeftButton);

    struct Row {
        char const* way;
        std::function<void()> leave;
    };
    Row const rows[] = {
        {"the window loses the focus",
         [this] {
             QEvent event(QEvent::WindowDeactivate);
             QCoreApplication::sendEvent(&window, &event);
         }},
        {"the pointer is taken away",
         [this] {
             QEvent event(QEvent::UngrabMouse);
             QCoreApplication::sendEvent(&wheel(), &event);
         }},
        {"the panel is hidden", [this] { window.panel("coloreditor")->hide(); }},
        {"another colour is selected", [this] { choose("Ivory"); }},
        {"a command is typed", [this] { run("color name Linen Flax"); }},
    };
    for (Row const& row : rows) {
        choose("Teal");
        dragHue(4);
        row.leave();
        window.panel("coloreditor")->show();
        settle();
        // An open step would take this one in, and its undo would not give it back.
        std::string const white = valueOf("White");
        auto const first = scene().colorDB()->colors()[0];
        scene().colorController()->setColor(first, ZColor(0.25F, 0.5F, 0.75F),
                                            zsg::AllowForwardUndoMerge::No);
        stack().undo();
        EXPECT_EQ(valueOf("White"), white) << row.way;
        QTest::mouseRelease(&wheel(), Qt::LeftButton);
        stack().goTo(0);
        settle();
        EXPECT_EQ(valueOf("Teal"), before) << row.way;
    }

    choose("Teal");
    dragHue(4);
    find<QAction>("undo").trigger();
    settle();
    EXPECT_EQ(valueOf("Teal"), before) << "undo in a drag ends it and takes it back";
    EXPECT_EQ(stack().index(), 0);
    QTest::mouseRelease(&wheel(), Qt::LeftButton);
}

TEST_F(ColorEditorTest, AnEntryThatWasLeftOpenStays) {
    run("color set Teal 0.5 0.5 0.5 merge");
    std::string const before = valueOf("Teal");
    dragHue(4);
    QTest::keyClick(&wheel(), Qt::Key_Escape);
    EXPECT_EQ(valueOf("Teal"), before);
    EXPECT_EQ(history(), "Set Color;|");
}

TEST_F(ColorEditorTest, NumbersAreTyped) {
    auto& red = find<QDoubleSpinBox>("linearRedNumber");
    auto& blue = find<QDoubleSpinBox>("linearBlueNumber");
    find<QTabWidget>("colourPages").setCurrentIndex(2);
    settle();
    QString const shown = blue.text();
    blue.setFocus();
    blue.selectAll();
    QTest::keyClicks(&blue, shown);
    QTest::keyClick(&blue, Qt::Key_Return);
    EXPECT_EQ(history(), "|") << "the same number is no edit";
    blue.selectAll();
    QTest::keyClicks(&blue, QLocale().toString(2.5));
    EXPECT_EQ(history(), "|") << "not for every digit";
    QTest::keyClick(&blue, Qt::Key_Return);
    settle();
    EXPECT_EQ(history(), "Set Color;|");
    EXPECT_EQ(valueOf("Teal"), "0.000000 0.215861 2.500000");
    stack().undo();
    settle();
    EXPECT_EQ(blue.text(), shown) << "the number follows the history";

    red.setFocus();
    expectPushes(2, [&red] { // at the first frame, and after the pause that ends it
        for (int i = 0; i < 5; ++i) {
            QTest::keyClick(&red, Qt::Key_Up);
        }
    });
    EXPECT_EQ(history(), "Set Color;|") << "a burst of steps is one";
    blue.clearFocus();
    red.clearFocus();
    QWheelEvent wheelEvent(QPointF(5, 5), red.mapToGlobal(QPointF(5, 5)), {}, QPoint(0, 120), {},
                           {}, Qt::NoScrollPhase, false);
    wheelEvent.ignore();
    QCoreApplication::sendEvent(&red, &wheelEvent);
    EXPECT_FALSE(wheelEvent.isAccepted()) << "without the focus the panel scrolls";
    stack().goTo(0);

    auto& hex = find<QLineEdit>("colourHex");
    settle();
    hex.setFocus();
    QTest::keyClick(&hex, Qt::Key_Return);
    EXPECT_EQ(stack().index(), 0);
    hex.selectAll();
    QTest::keyClicks(&hex, "#ff8000");
    QTest::keyClick(&hex, Qt::Key_Return);
    settle();
    EXPECT_NE(run("color show Teal").find("#ff8000"), std::string::npos);
    auto& name = find<QLineEdit>("colourName");
    name.setFocus();
    name.selectAll();
    QTest::keyClicks(&name, "Amber");
    QTest::keyClick(&name, Qt::Key_Return);
    EXPECT_EQ(history(), "Set Color;Set Color name (Amber);|");
}

TEST_F(ColorEditorTest, LookingChangesNothing) {
    run("color set Teal 3.25 -0.5 0.1234567 0.5");
    std::string const before = dump();
    int const entries = stack().count();
    for (char const* const name : {"White", "Teal", "Linen", "Teal"}) {
        choose(name);
        for (int page = 0; page < 3; ++page) {
            find<QTabWidget>("colourPages").setCurrentIndex(page);
            settle();
        }
    }
    EXPECT_EQ(stack().count(), entries);
    EXPECT_EQ(dump(), before);
}

TEST_F(ColorEditorTest, OfAMultiColourTheActiveOneIsEdited) {
    auto const cover = scene().colorDB()->multiColors()[0];
    ZColorExt const value = scene().colorDB()->colorFromId(cover);
    choose(value.getColorName().c_str());
    EXPECT_EQ(find<QLineEdit>("colourName").text().toStdString(), value.getActive().name());
    dragHue(3);
    scene().colorController()->setActiveSubColor(cover, value.getSubColorId(1));
    settle();
    EXPECT_EQ(find<QLineEdit>("colourName").text().toStdString(), value.getName(1))
        << "it follows, and the drag ended with the colour before";
    QTest::mouseRelease(&wheel(), Qt::LeftButton);
}
