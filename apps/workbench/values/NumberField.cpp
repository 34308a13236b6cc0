#include "workbench/values/NumberField.h"

#include "workbench/colors/ChannelSlider.h"
#include "workbench/values/NumberSpin.h"
#include "workbench/values/parameterValue.h"

#include <QHBoxLayout>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>
#include <limits>

namespace workbench {

using zsg::Type;

namespace {

NumberSpin::Kind kindOf(Type type) {
    return type == Type::Integer ? NumberSpin::Kind::Whole
           : type == Type::Float ? NumberSpin::Kind::Single
                                 : NumberSpin::Kind::Double;
}

std::optional<std::pair<double, double>> spanOf(zsg::Parameter const& parameter) {
    float low = 0;
    float high = 0;
    int lowest = 0;
    int highest = 0;
    std::pair<double, double> span;
    if (parameter.sliderRange(low, high) || parameter.limits(low, high)) {
        span = {double(low), double(high)};
    } else if (parameter.limits(lowest, highest)) {
        span = {lowest, highest};
    } else if (parameter.useKelvin()) {
        span = {1000, 12'000}; // from a candle to the sky
    }
    if (std::isfinite(span.first) && std::isfinite(span.second) && span.first < span.second) {
        return span;
    }
    return std::nullopt;
}

/// The colour of a black body as screens show it: a fit by Tanner Helland (2012) to the tables of
/// Mitchell Charity, good to a few steps of 255 between 1,000 and 40,000 K. For looking only.
QColor temperatureColor(double kelvin) {
    double const t = kelvin / 100;
    auto const byte = [](double v) { return static_cast<int>(std::clamp(v, 0.0, 255.0)); };
    double const red = t <= 66 ? 255 : 329.698727446 * std::pow(t - 60, -0.1332047592);
    double const green = t <= 66 ? 99.4708025861 * std::log(t) - 161.1195681661
                                 : 288.1221695283 * std::pow(t - 60, -0.0755148492);
    double const blue = t >= 66   ? 255
                        : t <= 19 ? 0
                                  : 138.5177312231 * std::log(t - 10) - 305.0447927307;
    return {byte(red), byte(green), byte(blue)};
}

QString unitOf(zsg::Parameter const& parameter) {
    if (parameter.useKelvin()) {
        return NumberField::tr(" K");
    }
    switch (parameter.quantity()) {
    case zsg::Quantity::WorldLength:
        return NumberField::tr(" units");
    case zsg::Quantity::Angle:
        return QStringLiteral("°");
    case zsg::Quantity::Pixels:
        return NumberField::tr(" px");
    case zsg::Quantity::Percent:
        return NumberField::tr(" %");
    default:
        return {};
    }
}

} // namespace

NumberField::NumberField(zsg::Parameter const& parameter, QWidget* parent)
    : ValueField(parent),
      type_(parameter.type()),
      span_(spanOf(parameter)),
      spin_(new NumberSpin(kindOf(type_), this)) {
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    if (span_) {
        makeBar(parameter.useKelvin());
        layout->addWidget(bar_, 1);
        double const span = span_->second - span_->first;
        if (type_ != Type::Integer) {
            spin_->setSingleStep(std::pow(10, std::floor(std::log10(span / 50))));
        }
    }
    spin_->setSuffix(unitOf(parameter));
    // Beside a bar it has room for what the bar gives.
    QString const widest = span_ ? "-000.00" + spin_->suffix() : QString("-00000.000 units");
    spin_->setMinimumWidth(fontMetrics().horizontalAdvance(widest) + 2 * fontMetrics().height());
    spin_->setSizePolicy(span_ ? QSizePolicy::Fixed : QSizePolicy::Expanding, QSizePolicy::Fixed);
    layout->addWidget(spin_);
    setFocusProxy(spin_);
    connect(spin_, &QDoubleSpinBox::valueChanged, this, [this](double number) {
        showNumber(number, false);
        emit stepped();
    });
    connect(spin_, &QAbstractSpinBox::editingFinished, this, &ValueField::finished);
}

void NumberField::makeBar(bool isKelvin) {
    bar_ = new ChannelSlider(this);
    if (type_ == Type::Integer) { // a key goes to the next number at least
        double const one = ChannelSlider::steps / (span_->second - span_->first);
        bar_->setSingleStep(std::max(bar_->singleStep(), static_cast<int>(std::ceil(one))));
        bar_->setPageStep(std::max(bar_->pageStep(), bar_->singleStep()));
    }
    if (isKelvin) {
        ChannelSlider::Ramp ramp;
        for (std::size_t i = 0; i < ramp.size(); ++i) {
            double const part = double(i) / double(ramp.size() - 1);
            ramp[i] = temperatureColor(span_->first + part * (span_->second - span_->first));
        }
        bar_->setRamp(ramp);
    }
    connect(bar_, &QAbstractSlider::sliderPressed, this, &ValueField::pressed);
    connect(bar_, &QAbstractSlider::sliderReleased, this, &ValueField::released);
    connect(bar_, &ChannelSlider::cancelled, this, &ValueField::cancelled);
    auto const take = [this](int step) {
        double const part = double(step) / ChannelSlider::steps;
        double const number = span_->first + part * (span_->second - span_->first);
        showNumber(type_ == Type::Integer ? std::round(number) : number, false);
    };
    connect(bar_, &QAbstractSlider::sliderMoved, this, [this, take](int step) {
        take(step);
        emit moved();
    });
    connect(bar_, &ChannelSlider::stepped, this, [this, take](int step) {
        take(step);
        emit stepped();
    });
}

void NumberField::showValue(zsg::Variant const& value) {
    switch (type_) {
    case Type::Integer:
        return showNumber(zsg::tryGet<int>(value).value_or(0), false);
    case Type::Float:
        return showNumber(double(zsg::tryGet<float>(value).value_or(0)), false);
    default:
        return showNumber(zsg::tryGet<double>(value).value_or(0), false);
    }
}

void NumberField::showMixed(zsg::Variant const& one) {
    showValue(one);
    showNumber(number_, true);
}

std::unique_ptr<zsg::Variant> NumberField::wanted() const {
    switch (type_) {
    case Type::Integer:
        return makeValue(static_cast<int>(std::clamp<double>(
            number_, std::numeric_limits<int>::min(), std::numeric_limits<int>::max())));
    case Type::Float:
        return makeValue(static_cast<float>(number_));
    default:
        return makeValue(number_);
    }
}

void NumberField::showNumber(double number, bool mixed) {
    number_ = number;
    spin_->showNumber(number, mixed);
    if (bar_ && std::isfinite(number)) {
        QSignalBlocker const quiet(bar_);
        double const part = (number - span_->first) / (span_->second - span_->first);
        bar_->setValue(
            static_cast<int>(std::lround(std::clamp(part, 0.0, 1.0) * ChannelSlider::steps)));
    }
}

void NumberField::beginDrag() {
    dragged_ = number_;
    emit pressed();
}

void NumberField::dragBy(double part) {
    double number = dragged_;
    if (span_) {
        number += part * (span_->second - span_->first);
        number =
            std::clamp(number, std::min(span_->first, dragged_), std::max(span_->second, dragged_));
    } else {
        number += part * 100 * spin_->singleStep();
    }
    showNumber(type_ == Type::Integer ? std::round(number) : number, false);
    emit moved();
}

void NumberField::endDrag(bool given) {
    if (given) {
        emit released();
    } else {
        emit cancelled();
    }
}

} // namespace workbench
