#include "workbench/app/WindowStyle.h"

#include <QPainter>
#include <QStyleOption>

namespace workbench {

WindowStyle::WindowStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void WindowStyle::drawPrimitive(PrimitiveElement element, QStyleOption const* option,
                                QPainter* painter, QWidget const* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element == PE_IndicatorCheckBox) {
        QColor frame = option->palette.color(QPalette::Text);
        frame.setAlpha((option->state & State_Enabled) != 0 ? 128 : 64);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing, false);
        painter->setPen(frame);
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
        painter->restore();
    }
}

} // namespace workbench
