#include "workbench/WindowScene.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QLineEdit>
#include <QPointer>
#include <QSet>
#include <QTest>
#include <QTimer>

#include <cstdint>
#include <random>
#include <utility>

using namespace workbench;

namespace {

/// A person who does not look. Dialogs and menus that open are closed again, some with Return.
class RandomClicksTest : public WindowScene {
protected:
    RandomClicksTest() {
        closer_.setInterval(0);
        QObject::connect(&closer_, &QTimer::timeout, [this] {
            if (QWidget* const popup = QApplication::activePopupWidget()) {
                popup->close();
            } else if (auto* const box = QApplication::activeModalWidget()) {
                bool const agrees = !qobject_cast<QFileDialog*>(box) && dice(4) == 0;
                QTest::keyClick(box, agrees ? Qt::Key_Return : Qt::Key_Escape);
                box->close();
            }
        });
        closer_.start();
    }

    static unsigned seed() {
        bool given = false;
        int const number = qEnvironmentVariableIntValue("ZSG_TEST_SEED", &given);
        return given ? static_cast<unsigned>(number) : 20;
    }
    std::size_t dice(std::size_t sides) {
        return std::uniform_int_distribution<std::size_t>(0, sides - 1)(random_);
    }
    template <class List>
    auto oneOf(List const& list) {
        return list[static_cast<decltype(list.size())>(
            dice(static_cast<std::size_t>(list.size())))];
    }

    /// One act on a panel; actions of these names are left alone.
    void act(QSet<QString> const& without) {
        QString const name = oneOf(window.panelNames());
        Panel& panel = *window.panel(name);
        if (dice(4) == 0) {
            window.showPanel(name);
        }
        QList<QWidget*> widgets;
        for (QWidget* const widget : panel.findChildren<QWidget*>()) {
            if (widget->isVisible() && widget->isEnabled()) {
                widgets += widget;
            }
        }
        QWidget* const widget = widgets.isEmpty() ? &panel : oneOf(widgets);
        switch (dice(6)) {
        case 0:
        case 1:
            click(*widget, without);
            break;
        case 2:
        case 3: {
            widget->setFocus();
            constexpr Qt::Key keys[] = {Qt::Key_Up,     Qt::Key_Down, Qt::Key_Left, Qt::Key_Right,
                                        Qt::Key_Return, Qt::Key_Tab,  Qt::Key_Home, Qt::Key_End,
                                        Qt::Key_Escape, Qt::Key_Space};
            QTest::keyClick(widget, keys[dice(std::size(keys))]);
            break;
        }
        case 4: {
            auto* const line = qobject_cast<QLineEdit*>(widget);
            if (line && name != "console") {
                line->setFocus();
                line->selectAll();
                QTest::keyClicks(line, oneOf(QStringList{"a", "Wal", "0.5", "-7", "#12ab34", " "}));
                QTest::keyClick(line, Qt::Key_Return);
            }
            break;
        }
        default:
            trigger(panel, without);
        }
    }

    void click(QWidget& widget, QSet<QString> const& without) {
        for (QAction const* const action : widget.actions()) { // of a tool button
            if (without.contains(action->objectName())) {
                return;
            }
        }
        QPoint const at(static_cast<int>(dice(static_cast<std::size_t>(widget.width()) + 1)),
                        static_cast<int>(dice(static_cast<std::size_t>(widget.height()) + 1)));
        if (dice(5) == 0) {
            QTest::mouseDClick(&widget, Qt::LeftButton, {}, at);
        } else if (dice(3) == 0) { // a drag, which may end elsewhere
            QTest::mousePress(&widget, Qt::LeftButton, {}, at);
            QTest::mouseMove(&widget, at / 2);
            bool const holds = dice(4) == 0;
            if (!holds || qobject_cast<QAbstractSpinBox*>(&widget)) { // or it would go on stepping
                QTest::mouseRelease(&widget, Qt::LeftButton, {}, at / 2);
            } else {
                held_ += &widget;
            }
        } else {
            QTest::mouseClick(&widget, Qt::LeftButton,
                              dice(4) == 0 ? Qt::ShiftModifier : Qt::NoModifier, at);
        }
    }

    void trigger(Panel& panel, QSet<QString> const& without) {
        QList<QAction*> actions = panel.actions();
        actions += &find<QAction>("undo");
        actions += &find<QAction>("redo");
        QAction* const action = oneOf(actions);
        if (action->isEnabled() && !without.contains(action->objectName())) {
            action->trigger();
        }
    }

    /// Lets go of every button: the arrow of a number would go on stepping.
    void rest() {
        for (QPointer<QWidget> const& widget : std::exchange(held_, {})) {
            if (widget) {
                QTest::mouseRelease(widget, Qt::LeftButton);
            }
        }
        settle();
        scene().endDrags();
    }

    void goTo(int index) {
        EXPECT_TRUE(stack().goTo(index));
        settle();
    }

private:
    std::mt19937 random_{seed()};
    QTimer closer_;
    QList<QPointer<QWidget>> held_; ///< where the button went down and has not come up
};

} // namespace

TEST_F(RandomClicksTest, EverythingThatIsDoneCanBeUndone) {
    // Records that stay in the scene, with or without an entry; files, and choosing them.
    QSet<QString> const records = {"newColour",     "duplicateColour",     "pasteColour",
                                   "toggleMulti",   "newColorway",         "duplicateColorway",
                                   "newLightLayer", "duplicateLightLayer", "moveLightsToNewLayer",
                                   "loadSchema",    "saveSchema",          "newSurface"};
    auto const setVisible = [&](bool on) { // their buttons and keys go with them
        for (QAction* const action : window.findChildren<QAction*>()) {
            if (records.contains(action->objectName())) {
                action->setVisible(on);
            }
        }
    };
    setVisible(false);
    std::string const atFirst = dump();
    for (int i = 0; i < 4000; ++i) {
        act(records);
        if (i % 8 == 0) {
            settle();
        }
        ASSERT_EQ(stack().macroDepth(), 0) << i;
    }
    EXPECT_GT(stack().count(), 0);
    rest();
    goTo(0);
    EXPECT_EQ(dump(), atFirst);

    setVisible(true);

    // With those, what was undone comes back as it was.
    for (int i = 0; i < 1000; ++i) {
        act({"loadSchema", "saveSchema"});
        if (i % 8 == 0) {
            settle();
        }
    }
    rest();
    goTo(stack().count());
    std::string const done = dump();
    goTo(0);
    goTo(stack().count());
    EXPECT_EQ(dump(), done);
    scratch = true;
}
