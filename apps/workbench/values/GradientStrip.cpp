#include "workbench/values/GradientStrip.h"

#include "workbench/colors/swatch.h"
#include "workbench/scene/PointerDrag.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace workbench {

using zsg::ColorGradientStop;

namespace {

ColorGradientStop at(ColorGradientStop stop, float location) {
    stop.setLocation(location);
    return stop;
}

} // namespace

GradientStrip::GradientStrip(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(tr("Stops of the gradient"));
    auto* const drag = new PointerDrag(*this, [this](QPointF const& at) { return takeStop(at); });
    connect(drag, &PointerDrag::pressed, this, &GradientStrip::pressed);
    connect(drag, &PointerDrag::moved, this, [this](QPointF const& at) {
        moveCurrent(std::clamp(locationAt(at.x()), span_.first, span_.second));
        emit moved();
    });
    connect(drag, &PointerDrag::released, this, &GradientStrip::released);
    connect(drag, &PointerDrag::cancelled, this, &GradientStrip::cancelled);
}

void GradientStrip::setGradient(zsg::ColorGradient const& gradient) {
    gradient_ = gradient;
    span_ = {0, 1};
    for (ColorGradientStop const& stop : gradient_.getStops()) {
        if (std::isfinite(stop.getLocation())) {
            span_.first = std::min(span_.first, stop.getLocation());
            span_.second = std::max(span_.second, stop.getLocation());
        }
    }
    int const count = static_cast<int>(gradient_.getNStops());
    setCurrent(count == 0 ? -1 : std::clamp(current_, 0, count - 1));
    update();
}

void GradientStrip::setCurrent(int stop) {
    current_ = stop;
    setAccessibleDescription(current_ < 0
                                 ? tr("No stops")
                                 : tr("Stop %1 of %2 at %3")
                                       .arg(current_ + 1)
                                       .arg(gradient_.getNStops())
                                       .arg(double(gradient_.colorStop(current_).getLocation())));
    update();
    emit currentChanged();
}

void GradientStrip::replaceCurrent(ColorGradientStop const& stop) {
    if (current_ < 0) {
        return;
    }
    // Behind those that are there already, as the gradient puts them in order.
    auto stops = gradient_.getStops();
    stops.removeAt(current_);
    auto const place = std::upper_bound(stops.begin(), stops.end(), stop);
    int const next = static_cast<int>(place - stops.begin());
    stops.insert(place, stop);
    gradient_.clearStops();
    for (ColorGradientStop const& s : stops) {
        gradient_.addColorStop(s.getColor(), s.getLocation(), s.getSlopeLeft(), s.getSlopeRight());
    }
    setCurrent(next);
}

void GradientStrip::removeCurrent() {
    if (current_ < 0) {
        return;
    }
    auto stops = gradient_.getStops();
    stops.removeAt(current_);
    gradient_.clearStops();
    for (ColorGradientStop const& s : stops) {
        gradient_.addColorStop(s.getColor(), s.getLocation(), s.getSlopeLeft(), s.getSlopeRight());
    }
    setCurrent(std::min(current_, static_cast<int>(stops.size()) - 1));
    emit stepped();
}

void GradientStrip::addAt(float location) {
    gradient_.addColorStop(colorAt(location), location, 0, 0);
    auto const stops = gradient_.getStops();
    ColorGradientStop const key({}, location, 0, 0);
    setCurrent(static_cast<int>(std::upper_bound(stops.begin(), stops.end(), key) - stops.begin()) -
               1);
    emit stepped();
}

void GradientStrip::addBeside() {
    auto const stops = gradient_.getStops();
    auto const last = static_cast<int>(stops.size()) - 1;
    if (last < 1) {
        return addAt(last < 0 || stops.front().getLocation() != 0 ? 0.0F : 1.0F);
    }
    int const from = std::clamp(current_, 0, last - 1);
    addAt((stops[from].getLocation() + stops[from + 1].getLocation()) / 2);
}

QSize GradientStrip::sizeHint() const {
    int const line = fontMetrics().height();
    return {16 * line, 4 * line};
}

QRect GradientStrip::strip() const {
    int const line = fontMetrics().height();
    return rect().adjusted(line / 2, line / 4, -line / 2, -line);
}

QPointF GradientStrip::handleOf(float location) const {
    QRectF const area = strip();
    double const part = double((location - span_.first) / (span_.second - span_.first));
    return {area.left() + std::clamp(part, 0.0, 1.0) * area.width(), area.bottom()};
}

float GradientStrip::locationAt(double x) const {
    QRectF const area = strip();
    return span_.first +
           static_cast<float>((x - area.left()) / area.width()) * (span_.second - span_.first);
}

nyxColor_rgba GradientStrip::colorAt(float location) const {
    auto const stops = gradient_.getStops();
    if (stops.isEmpty()) {
        return {0.5F, 0.5F, 0.5F, 1};
    }
    ColorGradientStop const key({}, location, 0, 0);
    auto const next = std::upper_bound(stops.begin(), stops.end(), key);
    if (next == stops.begin()) {
        return stops.front().getColor();
    }
    nyxColor_rgba const& a = std::prev(next)->getColor();
    if (next == stops.end() || !gradient_.blend()) {
        return a;
    }
    nyxColor_rgba const& b = next->getColor();
    float const from = std::prev(next)->getLocation();
    float const t = (location - from) / (next->getLocation() - from);
    return {std::lerp(a.r, b.r, t), std::lerp(a.g, b.g, t), std::lerp(a.b, b.b, t),
            std::lerp(a.a, b.a, t)};
}

bool GradientStrip::takeStop(QPointF const& at) {
    double const reach = fontMetrics().height() * 0.6;
    int nearest = -1;
    double least = reach;
    auto const stops = gradient_.getStops();
    for (int i = 0; i < stops.size(); ++i) {
        double const distance = std::abs(handleOf(stops[i].getLocation()).x() - at.x());
        // Of several at one place the one that is worked on, or else the last.
        if (distance < least || (distance == least && nearest != current_)) {
            nearest = i;
            least = distance;
        }
    }
    if (nearest >= 0) {
        setCurrent(nearest);
    }
    return nearest >= 0;
}

void GradientStrip::moveCurrent(float location) {
    if (current_ >= 0) {
        replaceCurrent(at(gradient_.colorStop(current_), location));
    }
}

void GradientStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QRect const area = strip();
    painter.fillRect(area, Qt::white);
    painter.fillRect(area, QBrush(QColor(0xb0, 0xb0, 0xb0), Qt::Dense4Pattern));
    for (int x = area.left(); x <= area.right(); ++x) {
        painter.fillRect(x, area.top(), 1, area.height(), screenColor(colorAt(locationAt(x))));
    }
    painter.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < static_cast<int>(gradient_.getNStops()); ++i) {
        if (i != current_) {
            paintHandle(painter, i);
        }
    }
    if (current_ >= 0) {
        paintHandle(painter, current_); // over those at the same place
    }
}

void GradientStrip::paintHandle(QPainter& painter, int stop) const {
    double const size = fontMetrics().height() * 0.45;
    QPointF const tip = handleOf(gradient_.colorStop(stop).getLocation());
    QPainterPath path(tip);
    path.lineTo(tip + QPointF(size, size));
    path.lineTo(tip + QPointF(size, 2 * size));
    path.lineTo(tip + QPointF(-size, 2 * size));
    path.lineTo(tip + QPointF(-size, size));
    path.closeSubpath();
    bool const isMarked = stop == current_;
    painter.setBrush(screenColor(gradient_.colorStop(stop).getColor()));
    painter.setPen(
        isMarked ? QPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::WindowText), 3)
                 : QPen(palette().color(QPalette::Mid), 1));
    painter.drawPath(path);
}

void GradientStrip::mouseDoubleClickEvent(QMouseEvent* event) {
    addAt(std::clamp(locationAt(event->position().x()), span_.first, span_.second));
}

void GradientStrip::keyPressEvent(QKeyEvent* event) {
    int const way =
        (event->key() == Qt::Key_Right ? 1 : 0) - (event->key() == Qt::Key_Left ? 1 : 0);
    if (way != 0 && current_ >= 0) {
        bool const isLarge = (event->modifiers() & Qt::ShiftModifier) != 0;
        float const step = isLarge ? 0.01F : 0.001F;
        moveCurrent(gradient_.colorStop(current_).getLocation() + float(way) * step);
        emit stepped();
    } else if (event->key() == Qt::Key_Delete) {
        removeCurrent();
    } else {
        QWidget::keyPressEvent(event);
    }
}

bool GradientStrip::focusNextPrevChild(bool next) {
    int const wanted = current_ + (next ? 1 : -1);
    if (hasFocus() && wanted >= 0 && wanted < static_cast<int>(gradient_.getNStops())) {
        setCurrent(wanted);
        return true;
    }
    return QWidget::focusNextPrevChild(next);
}

} // namespace workbench
