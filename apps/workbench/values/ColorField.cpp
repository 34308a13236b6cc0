#include "workbench/values/ColorField.h"

#include "host/sRGB.h"
#include "workbench/colors/ColorWheel.h"
#include "workbench/colors/swatch.h"
#include "workbench/values/parameterValue.h"
#include "workbench/values/valueText.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPainter>
#include <QToolButton>

namespace workbench {

namespace {

template <class Color>
std::unique_ptr<zsg::Variant> withRgba(zsg::Variant const& present, nyxColor_rgba const& rgba) {
    Color color = *zsg::tryGet<Color>(present);
    color.setColor(ZColor(rgba), ZColorExt::NameOp::Keep);
    return makeValue(color);
}

} // namespace

ColorField::ColorField(QWidget* parent)
    : ValueField(parent),
      hex_(new QLineEdit(this)),
      swatch_(new QToolButton(this)),
      popup_(new QFrame(this, Qt::Popup)),
      wheel_(new ColorWheel(popup_)) {
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    int const line = fontMetrics().height();
    swatch_->setIconSize({3 * line, line});
    swatch_->setAccessibleName(tr("Choose by hue, saturation and brightness"));
    swatch_->setToolTip(swatch_->accessibleName());
    hex_->setAccessibleName(tr("Hexadecimal value"));
    layout->addWidget(swatch_);
    layout->addWidget(hex_, 1);
    setFocusProxy(hex_);
    popup_->setFrameStyle(QFrame::StyledPanel);
    auto* const inside = new QHBoxLayout(popup_);
    inside->addWidget(wheel_);
    connect(swatch_, &QToolButton::clicked, this, &ColorField::openWheel);
    connect(hex_, &QLineEdit::editingFinished, this, &ColorField::commit);
    connect(wheel_, &ColorWheel::pressed, this, &ValueField::pressed);
    connect(wheel_, &ColorWheel::released, this, &ValueField::released);
    connect(wheel_, &ColorWheel::cancelled, this, &ValueField::cancelled);
    connect(wheel_, &ColorWheel::moved, this, [this](float h, float s, float v) {
        state_.setHsv(h, s, v);
        showState(false);
        emit moved();
    });
    connect(wheel_, &ColorWheel::stepped, this, [this](float h, float s, float v) {
        state_.setHsv(h, s, v);
        showState(false);
        emit stepped();
    });
}

void ColorField::showValue(zsg::Variant const& value) {
    present_.reset(value.cloneValue());
    auto const color = zsg::tryGet<ZColorExt>(value);
    auto const rgba = color ? color->rgba() : zsg::tryGet<ZColorExtAlpha>(value)->rgba();
    if (rgba != state_.value()) { // or a gray one would lose its hue
        state_.setValue(rgba);
    }
    showState(false);
}

void ColorField::showMixed(zsg::Variant const& one) {
    showValue(one);
    showState(true);
}

std::unique_ptr<zsg::Variant> ColorField::wanted() const {
    return present_->type() == zsg::Type::Color
               ? withRgba<ZColorExt>(*present_, state_.value())
               : withRgba<ZColorExtAlpha>(*present_, state_.value());
}

void ColorField::showState(bool mixed) {
    QSize const size = swatch_->iconSize();
    QPixmap pixmap(size * devicePixelRatioF());
    pixmap.setDevicePixelRatio(devicePixelRatioF());
    pixmap.fill(Qt::transparent);
    if (!mixed) {
        QPainter painter(&pixmap);
        Swatch swatch;
        swatch.value = state_.value();
        paintSwatch(painter, QRect(QPoint(), size), swatch);
    }
    swatch_->setIcon(pixmap);
    wheel_->setHsv(state_.hue(), state_.saturation(), state_.brightness());
    hex_->setPlaceholderText(mixed ? tr("mixed") : QString());
    if (!hex_->hasFocus() || !hex_->isModified()) {
        hex_->setText(mixed ? QString()
                            : QString::fromStdString(app::hexColorWithAlpha(state_.value())));
    }
}

void ColorField::openWheel() {
    popup_->resize(popup_->sizeHint());
    popup_->move(swatch_->mapToGlobal(QPoint(0, swatch_->height())));
    popup_->show();
    wheel_->setFocus();
}

void ColorField::commit() {
    if (!hex_->isModified() || !present_) {
        return;
    }
    hex_->setModified(false);
    QString text = hex_->text().trimmed();
    if (!text.startsWith('#') && !text.contains(' ')) {
        text.prepend('#');
    }
    auto const color = valueFromText(text, *present_);
    if (!color) {
        emit said(tr("%1 is no color; expected #rrggbb or #rrggbbaa.").arg(text));
    } else if (text != QString::fromStdString(app::hexColorWithAlpha(state_.value()))) {
        showValue(*color);
        emit stepped();
        emit finished();
        return;
    }
    showState(false);
}

} // namespace workbench
