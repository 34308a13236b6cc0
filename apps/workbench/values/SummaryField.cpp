#include "workbench/values/SummaryField.h"

#include "workbench/values/parameterValue.h"

#include <QHBoxLayout>
#include <QLabel>

namespace workbench {

SummaryField::SummaryField(QWidget* parent) : ValueField(parent), text_(new QLabel(this)) {
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(text_, 1);
}

void SummaryField::showValue(zsg::Variant const& value) {
    value_.reset(value.cloneValue());
    text_->setText(summaryOf(value));
}

void SummaryField::showMixed(zsg::Variant const& one) {
    value_.reset(one.cloneValue());
    text_->setText(tr("mixed"));
}

std::unique_ptr<zsg::Variant> SummaryField::wanted() const {
    return std::unique_ptr<zsg::Variant>(value_ ? value_->cloneValue() : nullptr);
}

QString summaryOf(zsg::Variant const& value) {
    if (auto const weave = zsg::tryGet<zsg::WeavePattern>(value)) {
        return SummaryField::tr("%1 × %2 crossings").arg(weave->numWarp()).arg(weave->numWeft());
    }
    if (auto const gradient = zsg::tryGet<zsg::ColorGradient>(value)) {
        return SummaryField::tr("%n stop(s)", nullptr, static_cast<int>(gradient->getNStops()));
    }
    if (auto const curve = zsg::tryGet<zsg::AnimationCurve>(value)) {
        return SummaryField::tr("%n key(s)", nullptr, curve->keyCount());
    }
    return QString::fromLatin1(zsg::typeName(value.type()));
}

} // namespace workbench
