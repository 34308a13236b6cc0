#include "workbench/colors/ChannelSlider.h"

#include "workbench/scene/PointerDrag.h"

#include <QPainter>
#include <QWheelEvent>

#include <algorithm>

namespace workbench {

ChannelSlider::ChannelSlider(QWidget* parent) : QAbstractSlider(parent) {
    setRange(0, steps);
    setSingleStep(steps / 100);
    setPageStep(steps / 10);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto* const drag = new PointerDrag(*this, [](QPointF const&) { return true; });
    connect(drag, &PointerDrag::pressed, this, [this] { setSliderDown(true); });
    connect(drag, &PointerDrag::moved, this, [this](QPointF const& at) {
        double const share = (at.x() - 2) / std::max(1, width() - 4);
        setSliderPosition(qRound(std::clamp(share, 0.0, 1.0) * steps));
    });
    connect(drag, &PointerDrag::released, this, [this] { setSliderDown(false); });
    connect(drag, &PointerDrag::cancelled, this, [this] {
        emit cancelled();
        setSliderDown(false);
    });
    connect(this, &QAbstractSlider::actionTriggered, this, [this] {
        if (!isSliderDown()) {
            emit stepped(sliderPosition());
        }
    });
}

void ChannelSlider::setRamp(Ramp const& ramp) {
    ramp_ = ramp;
    update();
}

QSize ChannelSlider::sizeHint() const {
    return {8 * fontMetrics().height(), fontMetrics().height() * 5 / 4};
}

QSize ChannelSlider::minimumSizeHint() const {
    return {4 * fontMetrics().height(), sizeHint().height()};
}

void ChannelSlider::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QRect const bar = rect().adjusted(2, 2, -2, -2);
    double const x = bar.left() + double(value()) / steps * bar.width();
    if (ramp_) {
        QLinearGradient gradient(bar.topLeft(), bar.topRight());
        for (std::size_t i = 0; i < ramp_->size(); ++i) {
            gradient.setColorAt(double(i) / double(ramp_->size() - 1), (*ramp_)[i]);
        }
        painter.fillRect(bar, Qt::white);
        painter.fillRect(bar, QBrush(QColor(0xb0, 0xb0, 0xb0), Qt::Dense4Pattern));
        painter.fillRect(bar, gradient);
    } else {
        auto const group = isEnabled() ? QPalette::Active : QPalette::Disabled;
        painter.fillRect(bar, palette().color(group, QPalette::Base));
        painter.fillRect(QRectF(bar.topLeft(), QPointF(x, bar.bottom())),
                         palette().color(group, QPalette::Mid));
    }
    painter.setPen(hasFocus() ? QPen(palette().color(QPalette::Highlight), 2)
                              : QPen(QColor(0x80, 0x80, 0x80)));
    painter.drawRect(bar);
    painter.setPen(QPen(Qt::black, 3));
    painter.drawLine(QPointF(x, bar.top()), QPointF(x, bar.bottom()));
    painter.setPen(QPen(Qt::white, 1));
    painter.drawLine(QPointF(x, bar.top()), QPointF(x, bar.bottom()));
}

void ChannelSlider::wheelEvent(QWheelEvent* event) {
    if (hasFocus()) {
        QAbstractSlider::wheelEvent(event);
    } else {
        event->ignore();
    }
}

} // namespace workbench
