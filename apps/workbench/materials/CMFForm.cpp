#include "workbench/materials/CMFForm.h"

#include "host/cmfAttributeKey.h"
#include "workbench/materials/ImageField.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include <set>
#include <utility>

namespace workbench {

namespace {

/// A field cuts what is longer, which shows when it is edited only.
constexpr int longestValue = 1 << 20;

} // namespace

CMFForm::CMFForm(QWidget* parent) : QWidget(parent) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addStretch(1);
    build();
}

std::vector<CMFForm::Row> CMFForm::rowsOf(zsg::ZCMFSchema const& schema, Values const& values) {
    std::vector<Row> rows;
    std::set<std::string> known;
    for (std::size_t i = 0; i < schema.attributes.size(); ++i) {
        zsg::ZCMFAttribute const& attribute = schema.attributes[i];
        std::string const key = app::cmfAttributeKey(attribute.name.toStdString());
        if (known.insert(key).second && attribute.visible) {
            rows.push_back({key, attribute.name, static_cast<int>(i),
                            attribute.kind == ZCMFAttributeKind::Image});
        }
    }
    for (auto const& [key, value] : values) {
        if (!known.contains(key)) {
            rows.push_back({key, QString::fromStdString(key)});
        }
    }
    return rows;
}

void CMFForm::build() {
    // It may be a field of the page that has just been confirmed.
    for (Field const& field : fields_) {
        field.line->disconnect(this);
    }
    fields_.clear();
    if (page_) {
        page_->hide();
        page_->deleteLater();
    }
    page_ = new QWidget(this);
    auto* const form = new QFormLayout(page_);
    form->setRowWrapPolicy(QFormLayout::WrapAllRows); // names are long, and docks are narrow
    bool isOther = false;
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        Row const& row = rows_[i];
        if (row.attribute < 0 && !std::exchange(isOther, true)) {
            auto* const heading = new QLabel(tr("<b>Other</b>"), page_);
            heading->setToolTip(tr("What the material stores and the schema does not know"));
            form->addRow(heading);
        }
        Field field;
        QWidget* editor = nullptr;
        if (row.isImage) {
            field.image = new ImageField(page_);
            field.line = &field.image->line();
            editor = field.image;
            connect(field.image, &ImageField::chosen, this,
                    [this, key = row.key](QString const& path) {
                        commit();
                        emit edited(key, path.toStdString());
                    });
        } else {
            editor = field.line = new QLineEdit(page_);
        }
        field.line->setMaxLength(longestValue);
        field.line->setAccessibleName(row.label);
        connect(field.line, &QLineEdit::editingFinished, this, [this, i] { commit(i); });
        // As it is: an attribute's name may hold what labels take for a shortcut or for markup.
        auto* const label = new QLabel(page_);
        label->setTextFormat(Qt::PlainText);
        label->setText(row.label);
        label->setWordWrap(true);
        form->addRow(label, editor);
        fields_.push_back(field);
    }
    static_cast<QVBoxLayout*>(layout())->insertWidget(0, page_);
}

void CMFForm::show(zsg::ZCMFSchema const& schema, Values const& values, bool sameMaterial) {
    std::vector<Row> rows = rowsOf(schema, values);
    if (rows != rows_) {
        rows_ = std::move(rows);
        build();
    }
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        QLineEdit& line = *fields_[i].line;
        auto const found = values.find(rows_[i].key);
        QString const text =
            found == values.end() ? QString() : QString::fromStdString(found->second);
        if (!(sameMaterial && line.isModified()) && line.text() != text) {
            line.setText(text);
            line.setCursorPosition(0);
        }
        if (fields_[i].image) {
            fields_[i].image->showPicture();
        }
    }
}

void CMFForm::commit(std::size_t row) {
    QLineEdit& line = *fields_[row].line;
    if (line.isModified()) {
        line.setModified(false);
        emit edited(rows_[row].key, line.text().toStdString());
    }
}

void CMFForm::commit() {
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        commit(i);
    }
}

void CMFForm::drop() {
    for (Field const& field : fields_) {
        field.line->setModified(false);
    }
}

int CMFForm::currentAttribute() const {
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        if (fields_[i].line->hasFocus()) {
            return rows_[i].attribute;
        }
    }
    return -1;
}

bool CMFForm::focus(QString const& label) {
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        if (rows_[i].label == label) {
            fields_[i].line->setFocus();
            return true;
        }
    }
    return false;
}

} // namespace workbench
