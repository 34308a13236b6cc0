#pragma once

#include <QLineEdit>
#include <QStyledItemDelegate>

namespace workbench {

/// Edits a name in place. What is being typed stays while the row changes: views show an editor the
/// present value again whatever has changed, a small picture of the row for one.
class NameDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void setEditorData(QWidget* editor, QModelIndex const& index) const override {
        auto const* const line = qobject_cast<QLineEdit*>(editor);
        if (!line || !line->isModified()) {
            QStyledItemDelegate::setEditorData(editor, index);
        }
    }
};

} // namespace workbench
