#include "workbench/materials/CMFForm.h"

#include "host/cmfAttributeKey.h"
#include "workbench/materials/ImageField.h"

#include <QEvent>
#include <QFormLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextCursor>
#include <QVBoxLayout>

#include <utility>

namespace workbench {

namespace {

/// A field cuts what is longer, which shows when it is edited only.
constexpr int longestValue = 1 << 20;

} // namespace

QWidget* CMFForm::Field::widget() const { return line ? static_cast<QWidget*>(line) : lines; }

QString CMFForm::Field::text() const { return line ? line->text() : lines->toPlainText(); }

void CMFForm::Field::setText(QString const& text) const {
    if (line) {
        line->setText(text);
        line->setCursorPosition(0);
    } else {
        lines->setPlainText(text);
        lines->document()->setModified(false);
    }
}

bool CMFForm::Field::isModified() const {
    return line ? line->isModified() : lines->document()->isModified();
}

void CMFForm::Field::setModified(bool modified) const {
    if (line) {
        line->setModified(modified);
    } else {
        lines->document()->setModified(modified);
    }
}

CMFForm::CMFForm(QWidget* parent) : QWidget(parent) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addStretch(1);
    build();
}

std::vector<CMFForm::Row> CMFForm::rowsOf(zsg::ZCMFSchema const& schema,
                                          Values const& values) const {
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
    for (Row& row : rows) {
        auto const value = values.find(row.key);
        bool const hasLines =
            value != values.end() && value->second.find('\n') != std::string::npos;
        row.isLong = !row.isImage && (hasLines || longKeys_.contains(row.key));
    }
    return rows;
}

void CMFForm::build() {
    // It may be a field of the page that has just been confirmed.
    for (Field const& field : fields_) {
        field.widget()->disconnect(this);
        field.widget()->removeEventFilter(this);
    }
    fields_.clear();
    current_ = -1;
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
        Field const field = makeField(i);
        field.widget()->installEventFilter(this);
        // As it is: an attribute's name may hold what labels take for a shortcut or for markup.
        auto* const label = new QLabel(page_);
        label->setTextFormat(Qt::PlainText);
        label->setText(row.label);
        label->setWordWrap(true);
        form->addRow(label, field.image ? field.image : field.widget());
        fields_.push_back(field);
    }
    static_cast<QVBoxLayout*>(layout())->insertWidget(0, page_);
}

CMFForm::Field CMFForm::makeField(std::size_t row) {
    Field field;
    QString const& name = rows_[row].label;
    if (rows_[row].isLong) {
        field.lines = new QPlainTextEdit(page_);
        field.lines->setFixedHeight(5 * fontMetrics().lineSpacing());
        field.lines->setTabChangesFocus(true);
    } else if (rows_[row].isImage) {
        field.image = new ImageField(page_);
        field.line = &field.image->line();
        connect(field.image, &ImageField::chosen, this,
                [this, key = rows_[row].key](QString const& path) {
                    commit();
                    emit edited(key, path.toStdString());
                });
    } else {
        field.line = new QLineEdit(page_);
        field.line->setToolTip(tr("Shift+Return: several lines"));
    }
    if (field.line) {
        field.line->setMaxLength(longestValue);
        connect(field.line, &QLineEdit::editingFinished, this, [this, row] { commit(row); });
    }
    field.widget()->setAccessibleName(name);
    field.widget()->installEventFilter(this);
    return field;
}

/// Lines are confirmed when they are left; a line becomes lines.
bool CMFForm::eventFilter(QObject* watched, QEvent* event) {
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        if (watched == fields_[i].widget() && event->type() == QEvent::FocusIn) {
            current_ = static_cast<int>(i); // a menu that acts on it takes the focus away
        }
        if (watched == fields_[i].lines && event->type() == QEvent::FocusOut) {
            commit(i);
            break;
        }
        if (watched == fields_[i].line && event->type() == QEvent::KeyPress && !fields_[i].image) {
            auto const& key = static_cast<QKeyEvent const&>(*event);
            bool const isReturn = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
            if (isReturn && key.modifiers().testFlag(Qt::ShiftModifier)) {
                makeLong(i);
                return true;
            }
        }
    }
    return QWidget::eventFilter(watched, event);
}

void CMFForm::makeLong(std::size_t row) {
    std::vector<QString> texts;
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        texts.push_back(fields_[i].text());
        if (i != row) {
            commit(i);
        }
    }
    bool const wasTyped = fields_[row].isModified();
    rows_[row].isLong = true;
    longKeys_.insert(rows_[row].key);
    build();
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        fields_[i].setText(texts[i]);
    }
    QPlainTextEdit& lines = *fields_[row].lines;
    lines.setFocus();
    lines.moveCursor(QTextCursor::End);
    lines.insertPlainText("\n");
    lines.document()->setModified(wasTyped);
}

void CMFForm::show(zsg::ZCMFSchema const& schema, Values const& values, bool sameMaterial) {
    std::vector<Row> rows = rowsOf(schema, values);
    if (rows != rows_) {
        rows_ = std::move(rows);
        build();
    }
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        Field const& field = fields_[i];
        auto const found = values.find(rows_[i].key);
        QString const text =
            found == values.end() ? QString() : QString::fromStdString(found->second);
        if (!(sameMaterial && field.isModified()) && field.text() != text) {
            field.setText(text);
        }
        if (fields_[i].image) {
            fields_[i].image->showPicture();
        }
    }
}

void CMFForm::commit(std::size_t row) {
    Field const& field = fields_[row];
    if (field.isModified()) {
        field.setModified(false);
        emit edited(rows_[row].key, field.text().toStdString());
    }
}

void CMFForm::commit() {
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        commit(i);
    }
}

void CMFForm::drop() {
    for (Field const& field : fields_) {
        field.setModified(false);
    }
}

int CMFForm::currentAttribute() const {
    return current_ < 0 ? -1 : rows_[static_cast<std::size_t>(current_)].attribute;
}

bool CMFForm::focus(QString const& label) {
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        if (rows_[i].label == label) {
            fields_[i].widget()->setFocus();
            return true;
        }
    }
    return false;
}

} // namespace workbench
