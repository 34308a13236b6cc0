#include "workbench/colors/ChannelRow.h"

#include "workbench/colors/swatch.h"
#include "workbench/scene/ExpressionSpin.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>

#include <algorithm>
#include <array>

namespace workbench {

namespace {

struct Channel {
    char const* name;
    char const* objectName;
    double scale; ///< the number for a share of 1
    int decimals;
    double outside; ///< how far the number may go beyond 0 and the scale
    double (*share)(ColorState const&);
    void (*setShare)(ColorState&, double);
};

template <int component>
double encoded(ColorState const& state) {
    return double(state.encoded(component));
}
template <int component>
void setEncoded(ColorState& state, double share) {
    state.setEncoded(component, float(share));
}
template <int component>
double linear(ColorState const& state) {
    return double(state.linear(component));
}
template <int component>
void setLinear(ColorState& state, double share) {
    state.setLinear(component, float(share));
}

constexpr double farOutside = 10'000; // lamps are brighter than screens

constexpr std::array<Channel, ChannelRow::count> channels{{
    {QT_TRANSLATE_NOOP("Channel", "Hue"), "hue", 360, 1, 0,
     [](ColorState const& s) { return double(s.hue()); },
     [](ColorState& s, double v) { s.setHsv(float(v), s.saturation(), s.brightness()); }},
    {QT_TRANSLATE_NOOP("Channel", "Saturation"), "saturation", 100, 1, 0,
     [](ColorState const& s) { return double(s.saturation()); },
     [](ColorState& s, double v) { s.setHsv(s.hue(), float(v), s.brightness()); }},
    {QT_TRANSLATE_NOOP("Channel", "Brightness"), "brightness", 100, 1, 0,
     [](ColorState const& s) { return double(s.brightness()); },
     [](ColorState& s, double v) { s.setHsv(s.hue(), s.saturation(), float(v)); }},
    {QT_TRANSLATE_NOOP("Channel", "Red"), "red", 255, 0, 0, encoded<0>, setEncoded<0>},
    {QT_TRANSLATE_NOOP("Channel", "Green"), "green", 255, 0, 0, encoded<1>, setEncoded<1>},
    {QT_TRANSLATE_NOOP("Channel", "Blue"), "blue", 255, 0, 0, encoded<2>, setEncoded<2>},
    {QT_TRANSLATE_NOOP("Channel", "Red"), "linearRed", 1, 5, farOutside, linear<0>, setLinear<0>},
    {QT_TRANSLATE_NOOP("Channel", "Green"), "linearGreen", 1, 5, farOutside, linear<1>,
     setLinear<1>},
    {QT_TRANSLATE_NOOP("Channel", "Blue"), "linearBlue", 1, 5, farOutside, linear<2>, setLinear<2>},
    {QT_TRANSLATE_NOOP("Channel", "Alpha"), "alpha", 100, 1, 0, linear<3>, setLinear<3>},
}};

Channel const& entry(int channel) { return channels[static_cast<std::size_t>(channel)]; }

} // namespace

ChannelRow::ChannelRow(int channel, QGridLayout& layout, QWidget& parent)
    : QObject(&parent),
      channel_(channel),
      slider_(new ChannelSlider(&parent)),
      number_(new ExpressionSpin(&parent)) {
    Channel const& c = entry(channel);
    QString const name = QCoreApplication::translate("Channel", c.name);
    auto* const label = new QLabel(name, &parent);
    label->setBuddy(number_);
    slider_->setObjectName(QString(c.objectName) + "Slider");
    slider_->setAccessibleName(name);
    number_->setObjectName(QString(c.objectName) + "Number");
    number_->setAccessibleName(name);
    number_->setRange(-c.outside, c.scale + c.outside);
    number_->setDecimals(c.decimals);
    number_->setSingleStep(c.scale == 1 ? 0.01 : 1);
    number_->setWrapping(channel == 0);
    int const row = layout.rowCount();
    layout.addWidget(label, row, 0);
    layout.addWidget(slider_, row, 1);
    layout.addWidget(number_, row, 2);
    layout.setColumnStretch(1, 1);
}

void ChannelRow::show(ColorState const& state) {
    Channel const& c = entry(channel_);
    QSignalBlocker const noSlider(slider_);
    QSignalBlocker const noNumber(number_);
    double const share = c.share(state);
    slider_->setValue(qRound(std::clamp(share, 0.0, 1.0) * ChannelSlider::steps));
    number_->setValue(share * c.scale);
    ChannelSlider::Ramp ramp;
    for (std::size_t i = 0; i < ramp.size(); ++i) {
        ColorState at = state;
        c.setShare(at, double(i) / double(ramp.size() - 1));
        ramp[i] = screenColor(at.value());
    }
    if (channel_ == 0) { // its ends are the same place
        ramp.back() = ramp.front();
    }
    slider_->setRamp(ramp);
}

void ChannelRow::readSlider(ColorState& state) const {
    entry(channel_).setShare(state, double(slider_->sliderPosition()) / ChannelSlider::steps);
}

void ChannelRow::readNumber(ColorState& state) const {
    Channel const& c = entry(channel_);
    c.setShare(state, number_->value() / c.scale);
}

} // namespace workbench
