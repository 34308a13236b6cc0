#include "workbench/scene/FlowLayout.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>
#include <cstddef>

namespace workbench {

void FlowLayout::addItem(QLayoutItem* item) { items_.emplace_back(item); }

int FlowLayout::count() const { return static_cast<int>(items_.size()); }

bool FlowLayout::holds(int index) const { return index >= 0 && index < count(); }

QLayoutItem* FlowLayout::itemAt(int index) const {
    return holds(index) ? items_[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index) {
    if (!holds(index)) {
        return nullptr;
    }
    auto const at = items_.begin() + index;
    QLayoutItem* const taken = at->release();
    items_.erase(at);
    return taken;
}

QList<QRect> FlowLayout::places(QRect const& area) const {
    QRect const inside = area.marginsRemoved(contentsMargins());
    int const gap = std::max(spacing(), 0);
    QList<QRect> all;
    QPoint next = inside.topLeft();
    int rowHeight = 0;
    for (auto const& item : items_) {
        if (item->isEmpty()) {
            all += QRect();
            continue;
        }
        QSize const size = item->sizeHint();
        if (next.x() > inside.left() && next.x() + size.width() > inside.left() + inside.width()) {
            next = {inside.left(), next.y() + rowHeight + gap};
            rowHeight = 0;
        }
        all += QRect(next, size);
        next.rx() += size.width() + gap;
        rowHeight = std::max(rowHeight, size.height());
    }
    return all;
}

int FlowLayout::heightForWidth(int width) const {
    int height = 0;
    for (QRect const& place : places({0, 0, width, 0})) {
        height = std::max(height, place.y() + place.height());
    }
    return height + contentsMargins().bottom();
}

QSize FlowLayout::sizeHint() const {
    QSize size;
    for (QRect const& place : places({0, 0, QLAYOUTSIZE_MAX, 0})) {
        size = size.expandedTo({place.x() + place.width(), place.y() + place.height()});
    }
    return size + QSize(contentsMargins().right(), contentsMargins().bottom());
}

QSize FlowLayout::minimumSize() const {
    QSize size;
    for (auto const& item : items_) {
        size = size.expandedTo(item->isEmpty() ? QSize() : item->minimumSize());
    }
    return size.grownBy(contentsMargins());
}

void FlowLayout::setGeometry(QRect const& area) {
    QLayout::setGeometry(area);
    QList<QRect> const all = places(area);
    for (int i = 0; i < count(); ++i) {
        itemAt(i)->setGeometry(QStyle::visualRect(
            parentWidget() ? parentWidget()->layoutDirection() : Qt::LeftToRight, area, all[i]));
    }
}

} // namespace workbench
