#pragma once

#include <QStyledItemDelegate>

namespace workbench {

/// Cells that are a check box only, in their middle. The rest of a cell selects it.
class CheckDelegate final : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, QStyleOptionViewItem const& option,
               QModelIndex const& index) const override;
    [[nodiscard]] QSize sizeHint(QStyleOptionViewItem const& option,
                                 QModelIndex const& index) const override;

protected:
    bool editorEvent(QEvent* event, QAbstractItemModel* model, QStyleOptionViewItem const& option,
                     QModelIndex const& index) override;
};

} // namespace workbench
