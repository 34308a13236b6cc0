#include "workbench/scene/PointerDrag.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

#include <utility>

namespace workbench {

PointerDrag::PointerDrag(QWidget& widget, std::function<bool(QPointF const& at)> mayBegin,
                         Qt::MouseButton button)
    : QObject(&widget), mayBegin_(std::move(mayBegin)), button_(button) {
    widget.installEventFilter(this);
}

bool PointerDrag::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: { // a second press soon after the first one is one as well
        auto const* const mouse = static_cast<QMouseEvent*>(event);
        return mouse->button() == button_ && press(mouse->position());
    }
    case QEvent::MouseMove: {
        if (!active_) {
            return false;
        }
        QPointF const at = static_cast<QMouseEvent*>(event)->position();
        if (moved_ || at.toPoint() != pressedAt_.toPoint()) {
            moved_ = true; // from here on every place counts, the first one included
            emit moved(at);
        }
        return true;
    }
    case QEvent::MouseButtonRelease:
        if (active_ && static_cast<QMouseEvent*>(event)->button() == button_) {
            end(true);
            return true;
        }
        return false;
    case QEvent::UngrabMouse:
    case QEvent::WindowDeactivate:
    case QEvent::Hide:
        finish();
        return false;
    case QEvent::ShortcutOverride: // or a dialog around the widget would take Escape
    case QEvent::KeyPress:
        if (active_ && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
            event->accept();
            if (event->type() == QEvent::KeyPress) {
                end(false);
            }
            return true;
        }
        return false;
    default:
        return QObject::eventFilter(watched, event);
    }
}

void PointerDrag::finish() {
    if (active_) {
        end(true);
    }
}

bool PointerDrag::press(QPointF const& at) {
    if (!mayBegin_(at)) {
        return false;
    }
    active_ = true;
    moved_ = false;
    pressedAt_ = at;
    emit pressed();
    return true;
}

void PointerDrag::end(bool given) {
    active_ = false;
    if (given) {
        emit released();
    } else {
        emit cancelled();
    }
}

} // namespace workbench
