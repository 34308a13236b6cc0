#include "workbench/values/MetalPlot.h"

#include <QLocale>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace workbench {

namespace {

struct Line {
    char const* name;
    Qt::PenStyle style; // not by color alone
    double (*of)(app::MetalSample const&, double top);
};

constexpr Line lines[] = {
    {"n", Qt::SolidLine, [](app::MetalSample const& s, double top) { return s.n / top; }},
    {"k", Qt::DashLine, [](app::MetalSample const& s, double top) { return s.k / top; }},
    {"R", Qt::DotLine, [](app::MetalSample const& s, double) { return s.reflectance(); }},
};

} // namespace

MetalPlot::MetalPlot(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName(tr("n, k and the reflectance over the wavelength"));
}

void MetalPlot::setSamples(std::vector<app::MetalSample> samples) {
    samples.erase(std::remove_if(samples.begin(), samples.end(),
                                 [](app::MetalSample const& s) {
                                     return !std::isfinite(s.wavelength) || !std::isfinite(s.n) ||
                                            !std::isfinite(s.k);
                                 }),
                  samples.end());
    samples_ = std::move(samples);
    from_ = samples_.empty() ? 0 : samples_.front().wavelength;
    to_ = samples_.empty() ? 0 : samples_.back().wavelength;
    top_ = 1;
    for (app::MetalSample const& s : samples_) {
        top_ = std::max({top_, s.n, s.k});
    }
    setAccessibleDescription(
        samples_.empty()
            ? tr("No samples")
            : tr("Samples: %1, from %2 to %3 nm").arg(samples_.size()).arg(from_).arg(to_));
    update();
}

QSize MetalPlot::sizeHint() const {
    int const line = fontMetrics().height();
    return {24 * line, 14 * line};
}

QSize MetalPlot::minimumSizeHint() const {
    int const line = fontMetrics().height();
    return {14 * line, 8 * line};
}

QRectF MetalPlot::area() const {
    double const line = fontMetrics().height();
    return QRectF(rect()).adjusted(3 * line, 1.6 * line, -3 * line, -3.2 * line);
}

void MetalPlot::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(area(), palette().color(QPalette::Base));
    if (samples_.size() < 2 || !(to_ > from_)) {
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(area(), Qt::AlignCenter, tr("There is nothing to draw."));
        return;
    }
    paintAxes(painter);
    painter.setRenderHint(QPainter::Antialiasing);
    paintLines(painter);
    paintStrip(painter);
}

void MetalPlot::paintAxes(QPainter& painter) const {
    QRectF const a = area();
    QLocale const locale;
    double const line = fontMetrics().height();
    for (int i = 0; i <= 4; ++i) {
        double const part = i / 4.0;
        double const x = a.left() + part * a.width();
        double const y = a.bottom() - part * a.height();
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawLine(QPointF(x, a.top()), QPointF(x, a.bottom()));
        painter.drawLine(QPointF(a.left(), y), QPointF(a.right(), y));
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(QRectF(x - 3 * line, a.bottom(), 6 * line, 1.4 * line), Qt::AlignCenter,
                         tr("%1 nm").arg(locale.toString(from_ + part * (to_ - from_), 'f', 0)));
        painter.drawText(QRectF(0, y - line / 2, 2.8 * line, line),
                         Qt::AlignRight | Qt::AlignVCenter, locale.toString(part * top_, 'g', 3));
        painter.drawText(QRectF(a.right() + 0.2 * line, y - line / 2, 2.8 * line, line),
                         Qt::AlignLeft | Qt::AlignVCenter, locale.toString(part, 'g', 3));
    }
}

void MetalPlot::paintLines(QPainter& painter) const {
    QRectF const a = area();
    double const line = fontMetrics().height();
    double x = a.left();
    for (Line const& entry : lines) {
        QPainterPath path;
        for (app::MetalSample const& s : samples_) {
            QPointF const at(a.left() + (s.wavelength - from_) / (to_ - from_) * a.width(),
                             a.bottom() - std::clamp(entry.of(s, top_), 0.0, 1.0) * a.height());
            if (path.elementCount() == 0) {
                path.moveTo(at);
            } else {
                path.lineTo(at);
            }
        }
        QPen const pen(palette().color(QPalette::Text), 2, entry.style);
        painter.strokePath(path, pen);
        painter.setPen(pen);
        painter.drawLine(QPointF(x, 0.8 * line), QPointF(x + 2 * line, 0.8 * line));
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(QRectF(x + 2.3 * line, 0, 2 * line, 1.6 * line), Qt::AlignVCenter,
                         QString::fromLatin1(entry.name));
        x += 5 * line;
    }
}

void MetalPlot::paintStrip(QPainter& painter) const {
    QRectF const a = area();
    double const line = fontMetrics().height();
    QLinearGradient gradient(a.bottomLeft(), a.bottomRight());
    for (app::MetalSample const& s : samples_) {
        double const gray = std::pow(std::clamp(s.reflectance(), 0.0, 1.0), 1 / 2.2);
        gradient.setColorAt((s.wavelength - from_) / (to_ - from_),
                            QColor::fromRgbF(float(gray), float(gray), float(gray)));
    }
    QRectF const strip(a.left(), a.bottom() + 1.6 * line, a.width(), 1.2 * line);
    painter.fillRect(strip, gradient);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QRectF(0, strip.top(), 2.8 * line, strip.height()),
                     Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("R"));
}

} // namespace workbench
