#include "workbench/values/ToggleField.h"

#include "workbench/values/parameterValue.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QSignalBlocker>

namespace workbench {

ToggleField::ToggleField(QWidget* parent) : ValueField(parent), box_(new QCheckBox(this)) {
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(box_);
    setFocusProxy(box_);
    connect(box_, &QCheckBox::clicked, this, [this] {
        box_->setTristate(false);
        emit stepped();
        emit finished();
    });
}

void ToggleField::showValue(zsg::Variant const& value) {
    QSignalBlocker const quiet(box_);
    box_->setTristate(false);
    box_->setChecked(zsg::tryGet<bool>(value).value_or(false));
    box_->setText({});
}

void ToggleField::showMixed(zsg::Variant const&) {
    QSignalBlocker const quiet(box_);
    box_->setTristate(true);
    box_->setCheckState(Qt::PartiallyChecked);
    box_->setText(tr("mixed"));
}

std::unique_ptr<zsg::Variant> ToggleField::wanted() const {
    return makeValue(box_->checkState() == Qt::Checked);
}

} // namespace workbench
