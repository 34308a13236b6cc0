#include "workbench/lights/CheckDelegate.h"

#include <QApplication>
#include <QStyle>

namespace workbench {

namespace {

QStyle const& styleOf(QStyleOptionViewItem const& option) {
    return option.widget ? *option.widget->style() : *QApplication::style();
}

/// The part of the cell in which a style puts the box where it begins.
QStyleOptionViewItem middle(QStyleOptionViewItem const& option) {
    QStyle const& style = styleOf(option);
    int const margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, &option, option.widget) + 1;
    int const width =
        style.pixelMetric(QStyle::PM_IndicatorWidth, &option, option.widget) + 2 * margin;
    QStyleOptionViewItem part = option;
    part.rect = QStyle::alignedRect(option.direction, Qt::AlignCenter,
                                    QSize(width, option.rect.height()), option.rect);
    return part;
}

} // namespace

void CheckDelegate::paint(QPainter* painter, QStyleOptionViewItem const& option,
                          QModelIndex const& index) const {
    QStyleOptionViewItem ground = option;
    styleOf(option).drawControl(QStyle::CE_ItemViewItem, &ground, painter, option.widget);
    QStyleOptionViewItem box = middle(option);
    box.state.setFlag(QStyle::State_HasFocus, false);
    QStyledItemDelegate::paint(painter, box, index);
}

QSize CheckDelegate::sizeHint(QStyleOptionViewItem const& option, QModelIndex const& index) const {
    QSize const needed = QStyledItemDelegate::sizeHint(option, index);
    return needed.expandedTo({0, 3 * option.fontMetrics.height() / 2});
}

bool CheckDelegate::editorEvent(QEvent* event, QAbstractItemModel* model,
                                QStyleOptionViewItem const& option, QModelIndex const& index) {
    return QStyledItemDelegate::editorEvent(event, model, middle(option), index);
}

} // namespace workbench
