#include "workbench/colors/ColorWheel.h"

#include "workbench/scene/PointerDrag.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace workbench {

namespace {

constexpr double turn = 2 * std::numbers::pi;

void drawMark(QPainter& painter, QPointF const& at, double radius) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::black, 3));
    painter.drawEllipse(at, radius, radius);
    painter.setPen(QPen(Qt::white, 1.5));
    painter.drawEllipse(at, radius, radius);
}

} // namespace

ColorWheel::ColorWheel(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Hue, saturation and brightness"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    auto* const drag = new PointerDrag(*this, [this](QPointF const& at) { return takePart(at); });
    connect(drag, &PointerDrag::pressed, this, &ColorWheel::pressed);
    connect(drag, &PointerDrag::moved, this, &ColorWheel::follow);
    connect(drag, &PointerDrag::released, this, &ColorWheel::released);
    connect(drag, &PointerDrag::cancelled, this, &ColorWheel::cancelled);
}

void ColorWheel::setHsv(float hue, float saturation, float brightness) {
    hue_ = hue;
    saturation_ = saturation;
    brightness_ = brightness;
    setAccessibleDescription(tr("Hue %1 degrees, saturation %2 %, brightness %3 %")
                                 .arg(qRound(hue * 360))
                                 .arg(qRound(saturation * 100))
                                 .arg(qRound(brightness * 100)));
    update();
}

QSize ColorWheel::sizeHint() const {
    int const side = 12 * fontMetrics().height();
    return {side, side};
}

QSize ColorWheel::minimumSizeHint() const {
    int const side = 7 * fontMetrics().height();
    return {side, side};
}

QPointF ColorWheel::centre() const { return QRectF(rect()).center(); }

double ColorWheel::outerRadius() const { return std::min(width(), height()) / 2.0 - 2; }

double ColorWheel::innerRadius() const { return outerRadius() * 0.82; }

QRectF ColorWheel::square() const {
    double const half = (innerRadius() - 3) * std::numbers::sqrt2 / 2;
    return {centre() - QPointF(half, half), QSizeF(2 * half, 2 * half)};
}

void ColorWheel::drawRing() {
    double const ratio = devicePixelRatioF();
    ring_ = QImage(size() * ratio, QImage::Format_ARGB32_Premultiplied);
    ring_.setDevicePixelRatio(ratio);
    ring_.fill(Qt::transparent);
    QConicalGradient hues(centre(), 0);
    for (int i = 0; i <= 36; ++i) {
        hues.setColorAt(i / 36.0, QColor::fromHsvF(float(i % 36) / 36.0F, 1, 1));
    }
    QPainterPath path;
    path.addEllipse(centre(), outerRadius(), outerRadius());
    path.addEllipse(centre(), innerRadius(), innerRadius());
    QPainter painter(&ring_);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(path, hues);
}

void ColorWheel::paintEvent(QPaintEvent*) {
    if (ring_.isNull() || ring_.devicePixelRatio() != devicePixelRatioF()) {
        drawRing();
    }
    QPainter painter(this);
    painter.drawImage(0, 0, ring_);
    QRectF const area = square();
    QLinearGradient across(area.topLeft(), area.topRight());
    across.setColorAt(0, Qt::white);
    across.setColorAt(1, QColor::fromHsvF(std::clamp(hue_, 0.0F, 1.0F), 1, 1));
    painter.fillRect(area, across);
    QLinearGradient down(area.topLeft(), area.bottomLeft());
    down.setColorAt(0, Qt::transparent);
    down.setColorAt(1, Qt::black);
    painter.fillRect(area, down);
    painter.setRenderHint(QPainter::Antialiasing);
    double const mark = (outerRadius() - innerRadius()) / 2;
    double const middle = (outerRadius() + innerRadius()) / 2;
    double const angle = double(hue_) * turn;
    drawMark(painter, centre() + QPointF(std::cos(angle), -std::sin(angle)) * middle, mark - 1);
    drawMark(painter,
             area.topLeft() + QPointF(double(saturation_) * area.width(),
                                      double(1 - brightness_) * area.height()),
             mark * 0.7);
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
}

bool ColorWheel::takePart(QPointF const& at) {
    QPointF const offset = at - centre();
    double const radius = std::hypot(offset.x(), offset.y());
    part_ = square().contains(at)                                        ? Part::Square
            : radius <= outerRadius() + 2 && radius >= innerRadius() - 2 ? Part::Ring
                                                                         : Part::None;
    return part_ != Part::None;
}

void ColorWheel::follow(QPointF const& at) {
    if (part_ == Part::Ring) {
        QPointF const offset = at - centre();
        double const hue = std::atan2(-offset.y(), offset.x()) / turn;
        emit moved(float(hue < 0 ? hue + 1 : hue), saturation_, brightness_);
    } else {
        QRectF const area = square();
        emit moved(hue_, float(std::clamp((at.x() - area.left()) / area.width(), 0.0, 1.0)),
                   float(std::clamp(1 - (at.y() - area.top()) / area.height(), 0.0, 1.0)));
    }
}

void ColorWheel::keyPressEvent(QKeyEvent* event) {
    int const key = event->key();
    int const x = (key == Qt::Key_Right ? 1 : 0) - (key == Qt::Key_Left ? 1 : 0);
    int const y = (key == Qt::Key_Up ? 1 : 0) - (key == Qt::Key_Down ? 1 : 0);
    if (x == 0 && y == 0) {
        QWidget::keyPressEvent(event);
    } else if ((event->modifiers() & Qt::ControlModifier) != 0) {
        float const hue = hue_ + float(x + y) / 360;
        emit stepped(hue - std::floor(hue), saturation_, brightness_);
    } else {
        emit stepped(hue_, std::clamp(saturation_ + float(x) / 100, 0.0F, 1.0F),
                     std::clamp(brightness_ + float(y) / 100, 0.0F, 1.0F));
    }
}

void ColorWheel::resizeEvent(QResizeEvent*) { ring_ = {}; }

} // namespace workbench
