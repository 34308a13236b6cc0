#include "workbench/values/TextField.h"

#include "workbench/values/parameterValue.h"
#include "workbench/values/valueText.h"

#include <QEvent>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QToolButton>

#include <limits>

namespace workbench {

using zsg::Type;

namespace {

constexpr int longest = 10'000; // characters

} // namespace

TextField::TextField(Type type, QWidget* parent) : ValueField(parent) {
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    if (type == Type::StringList) {
        lines_ = new QPlainTextEdit(this);
        lines_->setFixedHeight(4 * fontMetrics().lineSpacing());
        lines_->setTabChangesFocus(true);
        lines_->setToolTip(tr("One text a line"));
        lines_->installEventFilter(this);
        layout->addWidget(lines_);
        setFocusProxy(lines_);
        return;
    }
    line_ = new QLineEdit(this);
    line_->setMaxLength(std::numeric_limits<int>::max()); // lists of numbers are long
    layout->addWidget(line_, 1);
    setFocusProxy(line_);
    connect(line_, &QLineEdit::editingFinished, this, &TextField::commit);
    if (type == Type::FilePath) {
        auto* const choose = new QToolButton(this);
        choose->setText(QStringLiteral("…"));
        choose->setToolTip(tr("Choose a file"));
        choose->setAccessibleName(choose->toolTip());
        connect(choose, &QToolButton::clicked, this, &TextField::browse);
        layout->addWidget(choose);
    }
}

void TextField::showValue(zsg::Variant const& value) {
    present_.reset(value.cloneValue());
    isMixed_ = false;
    bool const isTyping = line_ ? line_->hasFocus() && line_->isModified()
                                : lines_->hasFocus() && lines_->document()->isModified();
    if (!isTyping) {
        QString const text = valueText(value);
        // A line of a million numbers is nothing to type in, and would be cut off.
        bool const isLong = line_ && text.size() > longest;
        if (line_) {
            line_->setReadOnly(isLong);
        }
        setText(isLong ? text.left(longest) + QStringLiteral("…") : text);
    }
}

void TextField::showMixed(zsg::Variant const& one) {
    showValue(one);
    isMixed_ = true;
    setText({});
    if (line_) {
        line_->setPlaceholderText(tr("mixed"));
    } else {
        lines_->setPlaceholderText(tr("mixed"));
    }
}

std::unique_ptr<zsg::Variant> TextField::wanted() const {
    zsg::Variant const* const value = wanted_ ? wanted_.get() : present_.get();
    return std::unique_ptr<zsg::Variant>(value ? value->cloneValue() : nullptr);
}

bool TextField::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusOut) {
        commit();
    }
    return ValueField::eventFilter(watched, event);
}

QString TextField::text() const { return line_ ? line_->text() : lines_->toPlainText(); }

void TextField::setText(QString const& text) {
    if (line_) {
        line_->setPlaceholderText({});
        line_->setText(text);
    } else {
        QSignalBlocker const quiet(lines_);
        lines_->setPlaceholderText({});
        lines_->setPlainText(text);
        lines_->document()->setModified(false);
    }
}

void TextField::commit() {
    bool const isTyped = line_ ? line_->isModified() : lines_->document()->isModified();
    if (!present_ || !isTyped) {
        return;
    }
    QString const typed = text();
    wanted_ = valueFromText(typed, *present_);
    if (line_) {
        line_->setModified(false);
    } else {
        lines_->document()->setModified(false);
    }
    if (!wanted_) {
        setText(isMixed_ ? QString() : valueText(*present_));
        emit said(tr("This cannot be read as a %1: %2")
                      .arg(QString::fromLatin1(zsg::typeName(present_->type())), typed));
        return;
    }
    emit stepped();
    emit finished();
    wanted_.reset();
}

void TextField::browse() {
    QString const path = QFileDialog::getOpenFileName(this, tr("Choose a File"), line_->text());
    if (!path.isEmpty()) {
        line_->setText(path);
        line_->setModified(true);
        commit();
    }
}

} // namespace workbench
