#include "workbench/values/ChoiceField.h"

#include "workbench/values/parameterValue.h"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QSignalBlocker>

namespace workbench {

ChoiceField::ChoiceField(QWidget* parent) : ValueField(parent), box_(new QComboBox(this)) {
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(box_);
    setFocusProxy(box_);
    box_->setFocusPolicy(Qt::StrongFocus);
    box_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box_->setMinimumContentsLength(8);
    box_->installEventFilter(this);
    connect(box_, &QComboBox::activated, this, [this](int row) {
        if (row >= 0 && row < options_.size()) {
            options_.setSelection(options_[row].first);
            emit stepped();
            emit finished();
        }
    });
}

void ChoiceField::showValue(zsg::Variant const& value) {
    QSignalBlocker const quiet(box_);
    options_ = zsg::tryGet<zsg::Enumerable>(value).value_or(zsg::Enumerable());
    box_->clear();
    int selected = -1;
    for (auto const& [id, label] : options_) {
        if (id == options_.getSelection()) {
            selected = box_->count();
        }
        box_->addItem(label);
    }
    box_->setCurrentIndex(selected);
    box_->setPlaceholderText(tr("none of these"));
}

void ChoiceField::showMixed(zsg::Variant const& one) {
    showValue(one);
    box_->setPlaceholderText(tr("mixed"));
    box_->setCurrentIndex(-1);
}

std::unique_ptr<zsg::Variant> ChoiceField::wanted() const { return makeValue(options_); }

bool ChoiceField::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Wheel && !box_->hasFocus()) {
        event->ignore(); // scrolling past must not change it
        return true;
    }
    return ValueField::eventFilter(watched, event);
}

} // namespace workbench
