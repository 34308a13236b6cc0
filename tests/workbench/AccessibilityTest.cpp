#include "workbench/WindowScene.h"
#include "workbench/scene/ExpressionSpin.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QStyleOption>
#include <QTabBar>
#include <QTest>
#include <QToolButton>
#include <QTranslator>

#include <set>

using namespace workbench;

namespace {

/// Every text of the window 40 % longer, as it would be in another language.
class LongerTexts final : public QTranslator {
public:
    LongerTexts() { QCoreApplication::installTranslator(this); }
    ~LongerTexts() override { QCoreApplication::removeTranslator(this); }

    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(char const* context, char const* text, char const*,
                                    int) const override {
        QString const source = QString::fromUtf8(text);
        return QByteArray(context).startsWith('Q')
                   ? QString() // Qt's own
                   : source + QString((source.size() * 2 + 4) / 5, 'x');
    }
};

struct Longer {
    LongerTexts texts;
};

class AccessibilityTest : public WindowScene {
protected:
    /// Something to see in every panel.
    void fill() {
        scratch = true;
        run("surface new 128");
        run("layer new 0");
        run("color name Teal Petrol");
        window.resize(1500, 1000);
        settle();
    }
    template <class Act>
    void inEachPanel(Act&& act) {
        fill();
        for (QString const& name : window.panelNames()) {
            SCOPED_TRACE(name.toStdString());
            window.showPanel(name);
            settle();
            act(*window.panel(name));
        }
    }
    static std::string what(QWidget const& widget) {
        return std::string(widget.parentWidget() ? widget.parentWidget()->metaObject()->className()
                                                 : "") +
               "/" + widget.metaObject()->className() + " " + widget.objectName().toStdString();
    }
};

class LongerTextsTest : private Longer, public AccessibilityTest {};

bool isForKeys(QWidget const& widget) {
    return widget.isVisible() && widget.isEnabled() && !widget.focusProxy() &&
           (widget.focusPolicy() & Qt::TabFocus) == Qt::TabFocus;
}

/// Parts of a widget, which speaks for them.
bool isPart(QWidget const& widget) {
    QWidget const* const parent = widget.parentWidget();
    return qobject_cast<QAbstractSpinBox const*>(parent) ||
           qobject_cast<QComboBox const*>(parent) || qobject_cast<QLineEdit const*>(parent) ||
           qobject_cast<QAbstractItemView const*>(parent);
}

bool inPanel(QWidget const& widget) {
    QWidget const* parent = &widget;
    while (parent && !qobject_cast<Panel const*>(parent)) {
        parent = parent->parentWidget();
    }
    return parent;
}

} // namespace

TEST_F(AccessibilityTest, TabReachesEverythingOfEveryPanel) {
    inEachPanel([&](Panel& panel) {
        std::set<QWidget*> wanted;
        for (QWidget* const widget : panel.findChildren<QWidget*>()) {
            if (isForKeys(*widget) && !isPart(*widget) && !widget->visibleRegion().isEmpty()) {
                wanted.insert(widget);
            }
        }
        ASSERT_FALSE(wanted.empty());
        QWidget* first = &panel;
        for (int i = 0; i < 10'000 && !wanted.contains(first); ++i) {
            first = first->nextInFocusChain();
        }
        ASSERT_TRUE(wanted.contains(first)) << "the chain does not lead into the panel";
        first->setFocus(Qt::TabFocusReason);
        for (int i = 0; i < 2000 && !wanted.empty(); ++i) {
            wanted.erase(QApplication::focusWidget());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        for (QWidget const* const widget : wanted) {
            ADD_FAILURE() << "Tab does not reach " << what(*widget) << ", it ends at "
                          << what(*QApplication::focusWidget());
        }
        for (QAction const* const action : panel.actions()) {
            bool hasButton = false;
            for (auto const* const button : panel.findChildren<QToolButton*>()) {
                bool const shows = button->actions().contains(action) ||
                                   (button->menu() && button->menu()->actions().contains(action));
                hasButton |= shows && (button->focusPolicy() & Qt::TabFocus) != 0;
            }
            EXPECT_TRUE(hasButton || !action->shortcut().isEmpty() || action->isSeparator())
                << action->text().toStdString();
            for (QAction const* const menu : window.findChildren<QAction*>()) {
                bool const isBoth = menu->shortcutContext() == Qt::WindowShortcut &&
                                    menu->shortcuts().contains(action->shortcut());
                EXPECT_FALSE(isBoth)
                    << "ambiguous keys do nothing: " << action->text().toStdString();
            }
        }
    });
}

TEST_F(AccessibilityTest, EverythingThatCanBeUsedSaysWhatItIs) {
    inEachPanel([&](Panel& panel) {
        for (QWidget* const widget : panel.findChildren<QWidget*>()) {
            if (!isForKeys(*widget) || isPart(*widget)) {
                continue;
            }
            QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(widget);
            ASSERT_NE(spoken, nullptr);
            EXPECT_FALSE(spoken->text(QAccessible::Name).isEmpty()) << what(*widget);
            auto const* const view = qobject_cast<QAbstractItemView const*>(widget);
            QAbstractItemModel const* const model = view ? view->model() : nullptr;
            for (int row = 0; model && row < std::min(model->rowCount(), 20); ++row) {
                for (int column = 0; column < model->columnCount(); ++column) {
                    QModelIndex const index = model->index(row, column);
                    EXPECT_FALSE(index.data(Qt::AccessibleTextRole).toString().isEmpty() &&
                                 index.data(Qt::DisplayRole).toString().isEmpty())
                        << what(*widget) << ' ' << row << ' ' << column;
                }
            }
        }
    });
}

TEST_F(LongerTextsTest, NothingIsCut) {
    auto const expectRoom = [](QWidget const& widget, QString text, int room) {
        int widest = 0;
        for (QString const& line : text.remove('&').split('\n')) {
            widest = std::max(widest, widget.fontMetrics().horizontalAdvance(line));
        }
        EXPECT_LE(widest, room) << what(widget) << " \"" << text.toStdString() << '"';
    };
    auto const check = [&](QWidget const& widget) {
        int const width = widget.contentsRect().width();
        QStyle const& style = *widget.style();
        if (auto const* const label = qobject_cast<QLabel const*>(&widget)) {
            expectRoom(widget, label->wordWrap() ? QString() : label->text(), width);
        } else if (auto const* const button = qobject_cast<QAbstractButton const*>(&widget)) {
            expectRoom(widget, button->text(), width);
        } else if (auto const* const edit = qobject_cast<QLineEdit const*>(&widget)) {
            expectRoom(widget, edit->placeholderText(), width);
        } else if (auto const* const box = qobject_cast<QComboBox const*>(&widget)) {
            QStyleOptionComboBox option;
            option.initFrom(box);
            int const room =
                style
                    .subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, box)
                    .width();
            for (int i = 0; i < box->count(); ++i) {
                expectRoom(widget, box->itemText(i), room);
            }
        } else if (auto const* const tabs = qobject_cast<QTabBar const*>(&widget)) {
            for (int i = 0; i < tabs->count(); ++i) {
                expectRoom(widget, tabs->tabText(i),
                           tabs->tabRect(i).width() -
                               style.pixelMetric(QStyle::PM_TabBarTabHSpace, nullptr, tabs));
            }
        } else if (auto const* const header = qobject_cast<QHeaderView const*>(&widget)) {
            int const margins = 2 * style.pixelMetric(QStyle::PM_HeaderMargin, nullptr, header);
            bool const isRow = header->orientation() == Qt::Horizontal;
            for (int i = 0; i < header->count(); ++i) {
                int const room = isRow ? header->sectionSize(i) : width;
                expectRoom(widget, header->model()->headerData(i, header->orientation()).toString(),
                           header->isSectionHidden(i) ? 100'000 : room - margins);
            }
        } else if (auto const* const menus = qobject_cast<QMenuBar const*>(&widget)) {
            for (QAction* const action : menus->actions()) {
                EXPECT_TRUE(menus->rect().contains(menus->actionGeometry(action)));
            }
        }
    };
    inEachPanel([&](Panel& panel) {
        EXPECT_TRUE(panel.findChild<ExpressionSpin*>() || // rows of numbers may scroll
                    panel.width() <= panel.parentWidget()->width())
            << what(panel) << " scrolls sideways";
        for (QWidget* const widget : window.findChildren<QWidget*>()) {
            bool const isOfPanel = panel.isAncestorOf(widget) || !inPanel(*widget);
            if (widget->isVisible() && isOfPanel &&
                (!isPart(*widget) || qobject_cast<QHeaderView const*>(widget))) {
                check(*widget);
            }
        }
    });
}
