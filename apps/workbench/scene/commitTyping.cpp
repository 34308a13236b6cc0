#include "workbench/scene/commitTyping.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>

namespace workbench {

void commitTyping() {
    QPointer<QWidget> const field = QApplication::focusWidget();
    if (!field) {
        return;
    }
    QPointer<QWidget> const around = field->parentWidget();
    field->clearFocus();
    if (field && field->isVisible()) {
        field->setFocus();
    } else if (around) {
        around->setFocus(); // an editor of a list has closed
    }
}

} // namespace workbench
