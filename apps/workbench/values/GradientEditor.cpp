#include "workbench/values/GradientEditor.h"

#include "workbench/scene/commitTyping.h"
#include "workbench/values/ColorField.h"
#include "workbench/values/GradientStrip.h"
#include "workbench/values/NumberSpin.h"
#include "workbench/values/parameterValue.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QToolButton>
#include <QVBoxLayout>

namespace workbench {

GradientEditor::GradientEditor(QWidget* parent)
    : ValueField(parent),
      strip_(new GradientStrip(this)),
      blend_(new QCheckBox(tr("&Blend between stops"), this)),
      location_(new NumberSpin(NumberSpin::Kind::Single, this)),
      left_(new NumberSpin(NumberSpin::Kind::Single, this)),
      right_(new NumberSpin(NumberSpin::Kind::Single, this)),
      color_(new ColorField(this)) {
    strip_->setObjectName("gradientStrip");
    blend_->setObjectName("gradientBlend");
    location_->setObjectName("stopLocation");
    location_->setSingleStep(0.01);
    auto* const add = new QToolButton(this);
    add->setText(tr("Add Stop"));
    connect(add, &QToolButton::clicked, strip_, &GradientStrip::addBeside);
    auto* const remove = new QToolButton(this);
    remove->setText(tr("Remove Stop"));
    connect(remove, &QToolButton::clicked, strip_, &GradientStrip::removeCurrent);
    for (QToolButton* const button : {add, remove}) {
        connect(button, &QToolButton::pressed, this, &commitTyping);
    }
    auto* const bar = new QHBoxLayout;
    bar->addWidget(add);
    bar->addWidget(remove);
    bar->addWidget(blend_);
    bar->addStretch();
    auto* const form = new QFormLayout;
    form->addRow(tr("&Location"), location_);
    form->addRow(tr("&Color"), color_);
    form->addRow(tr("Slope on the l&eft"), left_);
    form->addRow(tr("Slope on the &right"), right_);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(strip_);
    layout->addLayout(bar);
    layout->addLayout(form);
    layout->addStretch();
    setFocusProxy(strip_);

    connect(strip_, &GradientStrip::currentChanged, this, &GradientEditor::showStop);
    connect(strip_, &GradientStrip::pressed, this, &ValueField::pressed);
    connect(strip_, &GradientStrip::moved, this, &ValueField::moved);
    connect(strip_, &GradientStrip::released, this, &ValueField::released);
    connect(strip_, &GradientStrip::cancelled, this, &ValueField::cancelled);
    connect(strip_, &GradientStrip::stepped, this, &ValueField::stepped);
    connect(blend_, &QCheckBox::clicked, this, [this] {
        emit stepped();
        emit finished();
    });
    for (NumberSpin* const spin : {location_, left_, right_}) {
        connect(spin, &QDoubleSpinBox::valueChanged, this, [this] {
            readStop();
            emit stepped();
        });
        connect(spin, &QAbstractSpinBox::editingFinished, this, &ValueField::finished);
    }
    connectColor();
}

void GradientEditor::connectColor() {
    connect(color_, &ValueField::pressed, this, &ValueField::pressed);
    connect(color_, &ValueField::moved, this, [this] {
        readStop();
        emit moved();
    });
    connect(color_, &ValueField::released, this, &ValueField::released);
    connect(color_, &ValueField::cancelled, this, &ValueField::cancelled);
    connect(color_, &ValueField::stepped, this, [this] {
        readStop();
        emit stepped();
    });
    connect(color_, &ValueField::finished, this, &ValueField::finished);
    connect(color_, &ValueField::said, this, &ValueField::said);
}

void GradientEditor::showValue(zsg::Variant const& value) {
    if (auto const gradient = zsg::tryGet<zsg::ColorGradient>(value)) {
        strip_->setGradient(*gradient);
        blend_->setChecked(gradient->blend());
    }
}

std::unique_ptr<zsg::Variant> GradientEditor::wanted() const {
    zsg::ColorGradient gradient = strip_->gradient();
    gradient.setBlend(blend_->isChecked());
    return makeValue(gradient);
}

void GradientEditor::showStop() {
    bool const isStop = strip_->current() >= 0;
    for (QWidget* const field : {static_cast<QWidget*>(location_), static_cast<QWidget*>(color_),
                                 static_cast<QWidget*>(left_), static_cast<QWidget*>(right_)}) {
        field->setEnabled(isStop);
    }
    auto const stop =
        isStop ? strip_->gradient().colorStop(strip_->current()) : zsg::ColorGradientStop();
    location_->showNumber(double(stop.getLocation()));
    left_->showNumber(double(stop.getSlopeLeft()));
    right_->showNumber(double(stop.getSlopeRight()));
    nyxColor_rgba const& c = stop.getColor();
    color_->showValue(*makeValue(ZColorExtAlpha(c.r, c.g, c.b, c.a)));
}

void GradientEditor::readStop() {
    auto const color = zsg::tryGet<ZColorExtAlpha>(*color_->wanted());
    strip_->replaceCurrent({color->rgba(), static_cast<float>(location_->value()),
                            static_cast<float>(left_->value()),
                            static_cast<float>(right_->value())});
}

} // namespace workbench
