#include "workbench/values/CurveEditor.h"

#include "workbench/scene/commitTyping.h"
#include "workbench/values/CurvePlot.h"
#include "workbench/values/NumberSpin.h"
#include "workbench/values/parameterValue.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace workbench {

CurveEditor::CurveEditor(QWidget* parent)
    : ValueField(parent),
      plot_(new CurvePlot(this)),
      x_(new NumberSpin(NumberSpin::Kind::Single, this)),
      y_(new NumberSpin(NumberSpin::Kind::Single, this)),
      type_(new QComboBox(this)) {
    plot_->setObjectName("curvePlot");
    type_->setAccessibleName(tr("How the curve goes on from the key"));
    type_->setToolTip(type_->accessibleName());
    // In the order of their numbers, with their letters in files.
    type_->addItems({tr("U: smooth"), tr("T: smooth"), tr("s: step at the next key"),
                     tr("S: step at this key"), tr("L: straight")});
    auto* const bar = new QHBoxLayout;
    auto const addNumber = [&](NumberSpin* spin, QString const& name, char const* objectName) {
        auto* const label = new QLabel(name, this);
        label->setBuddy(spin);
        spin->setObjectName(objectName);
        spin->setAccessibleName(QString(name).remove('&'));
        spin->setSingleStep(0.01);
        bar->addWidget(label);
        bar->addWidget(spin, 1);
        connect(spin, &QDoubleSpinBox::valueChanged, this, [this] {
            readPoint();
            emit stepped();
        });
        connect(spin, &QAbstractSpinBox::editingFinished, this, &ValueField::finished);
    };
    addNumber(x_, tr("&X"), "curveX");
    addNumber(y_, tr("&Y"), "curveY");
    bar->addWidget(type_);
    auto* const add = new QToolButton(this);
    add->setText(tr("Add Key"));
    add->setToolTip(tr("A double click in the plot makes one, too"));
    connect(add, &QToolButton::clicked, plot_, &CurvePlot::insertBeside);
    auto* const remove = new QToolButton(this);
    remove->setText(tr("Remove Key"));
    connect(remove, &QToolButton::clicked, plot_, &CurvePlot::removeCurrent);
    for (QToolButton* const button : {add, remove}) {
        connect(button, &QToolButton::pressed, this, &commitTyping);
    }
    bar->addWidget(add);
    bar->addWidget(remove);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(plot_, 1);
    layout->addLayout(bar);
    setFocusProxy(plot_);

    connect(type_, &QComboBox::activated, this,
            [this](int type) { plot_->setType(static_cast<nyx::KeyType>(type)); });
    connect(plot_, &CurvePlot::currentChanged, this, &CurveEditor::showPoint);
    connect(plot_, &CurvePlot::pressed, this, &ValueField::pressed);
    connect(plot_, &CurvePlot::moved, this, &ValueField::moved);
    connect(plot_, &CurvePlot::released, this, &ValueField::released);
    connect(plot_, &CurvePlot::cancelled, this, &ValueField::cancelled);
    connect(plot_, &CurvePlot::stepped, this, &ValueField::stepped);
    connect(plot_, &CurvePlot::refused, this, &ValueField::said);
}

void CurveEditor::showValue(zsg::Variant const& value) {
    if (auto const curve = zsg::tryGet<zsg::AnimationCurve>(value)) {
        plot_->setCurve(*curve);
    }
}

std::unique_ptr<zsg::Variant> CurveEditor::wanted() const { return makeValue(plot_->curve()); }

void CurveEditor::showPoint() {
    auto const point = plot_->current();
    bool const isPoint = point.key >= 0;
    x_->setEnabled(isPoint);
    y_->setEnabled(isPoint);
    type_->setEnabled(isPoint);
    if (isPoint) {
        x_->showNumber(double(plot_->place(point).x));
        y_->showNumber(double(plot_->place(point).y));
        type_->setCurrentIndex(static_cast<int>(plot_->curve().keyAt(point.key).type));
    }
}

void CurveEditor::readPoint() {
    plot_->moveCurrent({static_cast<float>(x_->value()), static_cast<float>(y_->value())});
}

} // namespace workbench
