#include "workbench/scene/Panel.h"

#include "workbench/scene/commitTyping.h"

#include <QAction>
#include <QLayout>
#include <QToolButton>

namespace workbench {

QAction* Panel::makeAction(QString const& text, char const* name, QKeySequence const& keys,
                           std::function<void()> const& act, QLayout* bar) {
    auto* const action = new QAction(text, this);
    action->setObjectName(name);
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(action, &QAction::triggered, this, act);
    addAction(action);
    if (bar) {
        auto* const button = new QToolButton(this);
        button->setDefaultAction(action);
        connect(button, &QToolButton::pressed, this, &commitTyping); // it takes no focus
        bar->addWidget(button);
    }
    return action;
}

} // namespace workbench
