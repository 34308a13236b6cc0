#include "workbench/values/SummaryField.h"

#include "workbench/values/parameterValue.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace workbench {

SummaryField::SummaryField(QWidget* parent)
    : ValueField(parent), text_(new QLabel(this)), edit_(new QToolButton(this)) {
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(text_, 1);
    layout->addWidget(edit_);
    edit_->setText(tr("Edit"));
    edit_->hide();
    setFocusProxy(edit_);
    connect(edit_, &QToolButton::clicked, this, &SummaryField::openEditor);
}

void SummaryField::showValue(zsg::Variant const& value) {
    value_.reset(value.cloneValue());
    text_->setText(summaryOf(value));
    auto const type = value.type();
    edit_->setVisible(type == zsg::Type::WeavePattern || type == zsg::Type::ColorGradient ||
                      type == zsg::Type::AnimationCurve);
    if (editor_) {
        editor_->showValue(value);
    }
}

void SummaryField::showMixed(zsg::Variant const& one) {
    value_.reset(one.cloneValue());
    text_->setText(tr("mixed"));
}

std::unique_ptr<zsg::Variant> SummaryField::wanted() const {
    if (editor_) {
        return editor_->wanted();
    }
    return std::unique_ptr<zsg::Variant>(value_ ? value_->cloneValue() : nullptr);
}

void SummaryField::openEditor() {
    if (!dialog_) {
        dialog_ = new QDialog(this);
        dialog_->setWindowTitle(accessibleName());
        editor_ = makeEditor(value_->type(), dialog_);
        auto* const layout = new QVBoxLayout(dialog_);
        layout->addWidget(editor_);
        editor_->showValue(*value_);
        connect(editor_, &ValueField::pressed, this, &ValueField::pressed);
        connect(editor_, &ValueField::moved, this, &ValueField::moved);
        connect(editor_, &ValueField::released, this, &ValueField::released);
        connect(editor_, &ValueField::cancelled, this, &ValueField::cancelled);
        connect(editor_, &ValueField::stepped, this, &ValueField::stepped);
        connect(editor_, &ValueField::finished, this, &ValueField::finished);
        connect(editor_, &ValueField::said, this, &ValueField::said);
    }
    dialog_->show();
    dialog_->raise();
    editor_->setFocus();
}

QString summaryOf(zsg::Variant const& value) {
    if (auto const weave = zsg::tryGet<zsg::WeavePattern>(value)) {
        return SummaryField::tr("%1 × %2 crossings").arg(weave->numWarp()).arg(weave->numWeft());
    }
    if (auto const gradient = zsg::tryGet<zsg::ColorGradient>(value)) {
        return SummaryField::tr("stops: %1").arg(gradient->getNStops());
    }
    if (auto const curve = zsg::tryGet<zsg::AnimationCurve>(value)) {
        return SummaryField::tr("keys: %1").arg(curve->keyCount());
    }
    return QString::fromLatin1(zsg::typeName(value.type()));
}

} // namespace workbench
