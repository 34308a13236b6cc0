#include "workbench/values/CurvePlot.h"

#include "workbench/scene/PointerDrag.h"

#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <limits>

namespace workbench {

namespace {

nyxVector2f sum(nyxVector2f const& a, nyxVector2f const& b) { return {a.x + b.x, a.y + b.y}; }

nyxVector2f difference(nyxVector2f const& a, nyxVector2f const& b) {
    return {a.x - b.x, a.y - b.y};
}

constexpr CurvePlot::Part parts[] = {CurvePlot::Part::In, CurvePlot::Part::Key,
                                     CurvePlot::Part::Out};

} // namespace

CurvePlot::CurvePlot(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName(tr("Keys of the curve"));
    auto* const drag = new PointerDrag(*this, [this](QPointF const& at) { return takePoint(at); });
    connect(drag, &PointerDrag::pressed, this, [this] {
        isDragging_ = true; // what is seen must not run away under the pointer
        emit pressed();
    });
    connect(drag, &PointerDrag::moved, this, [this](QPointF const& at) {
        moveCurrent(fromWidget(at));
        emit moved();
    });
    connect(drag, &PointerDrag::released, this, [this] {
        isDragging_ = false;
        emit released();
        showAll();
    });
    connect(drag, &PointerDrag::cancelled, this, [this] {
        isDragging_ = false;
        emit cancelled();
        showAll();
    });
}

void CurvePlot::setCurve(zsg::AnimationCurve const& curve) {
    curve_ = curve;
    showAll();
    Point point = current_;
    point.key = std::clamp(point.key, std::min(0, curve_.keyCount() - 1), curve_.keyCount() - 1);
    setCurrent(point);
}

void CurvePlot::setCurrent(Point point) {
    current_ = point;
    QString const names[] = {tr("incoming handle"), tr("key"), tr("outgoing handle")};
    setAccessibleDescription(current_.key < 0 ? tr("No keys")
                                              : tr("Key %1 of %2, %3, x %4, y %5")
                                                    .arg(current_.key + 1)
                                                    .arg(curve_.keyCount())
                                                    .arg(names[static_cast<int>(current_.part)])
                                                    .arg(double(place(current_).x))
                                                    .arg(double(place(current_).y)));
    update();
    emit currentChanged();
}

nyxVector2f CurvePlot::place(Point point) const {
    nyx::AnimationKey const& key = curve_.keyAt(point.key);
    return point.part == Part::In ? key.in : point.part == Part::Key ? key.pos : key.out;
}

/// Puts everything that is finite into view, with some room around it.
void CurvePlot::showAll() {
    if (isDragging_) {
        return;
    }
    double left = 0;
    double right = 1;
    double low = 0;
    double high = 1;
    for (int i = 0; i < curve_.keyCount(); ++i) {
        for (Part const part : parts) {
            nyxVector2f const p = place({i, part});
            if (std::isfinite(p.x) && std::isfinite(p.y)) {
                left = std::min(left, double(p.x));
                right = std::max(right, double(p.x));
                low = std::min(low, double(p.y));
                high = std::max(high, double(p.y));
            }
        }
    }
    seen_ = QRectF(left, low, right - left, high - low);
    update();
}

QRectF CurvePlot::area() const {
    double const line = fontMetrics().height();
    return QRectF(rect()).adjusted(3 * line, line, -line, -1.5 * line);
}

QPointF CurvePlot::onWidget(nyxVector2f const& place) const {
    QRectF const a = area();
    return {a.left() + (double(place.x) - seen_.left()) / seen_.width() * a.width(),
            a.bottom() - (double(place.y) - seen_.top()) / seen_.height() * a.height()};
}

nyxVector2f CurvePlot::fromWidget(QPointF const& at) const {
    QRectF const a = area();
    return {static_cast<float>(seen_.left() + (at.x() - a.left()) / a.width() * seen_.width()),
            static_cast<float>(seen_.top() + (a.bottom() - at.y()) / a.height() * seen_.height())};
}

bool CurvePlot::takePoint(QPointF const& at) {
    double least = fontMetrics().height() * 0.7;
    Point nearest;
    for (int i = 0; i < curve_.keyCount(); ++i) {
        for (Part const part : parts) {
            QPointF const offset = onWidget(place({i, part})) - at;
            double const distance = std::hypot(offset.x(), offset.y());
            // Of several at one place the one that is worked on, or else the key.
            if (distance < least || (distance == least && nearest != current_ &&
                                     (Point{i, part} == current_ || part == Part::Key))) {
                least = distance;
                nearest = {i, part};
            }
        }
    }
    if (nearest.key >= 0) {
        setCurrent(nearest);
    }
    return nearest.key >= 0;
}

void CurvePlot::moveCurrent(nyxVector2f const& to) {
    if (current_.key < 0 || to == place(current_)) {
        return;
    }
    if (current_.part == Part::Key) {
        moveKey(to);
    } else if (current_.part == Part::In ? !curve_.setIn(current_.key, to)
                                         : !curve_.setOut(current_.key, to)) {
        // As far as the key it belongs to.
        nyxVector2f const nearest{curve_.keyAt(current_.key).pos.x, to.y};
        if (current_.part == Part::In) {
            curve_.setIn(current_.key, nearest);
        } else {
            curve_.setOut(current_.key, nearest);
        }
        emit refused(tr("A handle has to stay on its side of the key."));
    }
    setCurrent(current_);
}

void CurvePlot::moveKey(nyxVector2f const& to) {
    int const i = current_.key;
    float const low = i > 0 ? curve_.keyAt(i - 1).pos.x : -std::numeric_limits<float>::max();
    float const high =
        i + 1 < curve_.keyCount() ? curve_.keyAt(i + 1).pos.x : std::numeric_limits<float>::max();
    nyxVector2f const nearest{std::clamp(to.x, low, std::max(low, high)), to.y};
    nyx::AnimationKey key = curve_.keyAt(i);
    nyxVector2f const way = difference(nearest, key.pos);
    key.in = sum(key.in, way);
    key.out = sum(key.out, way);
    key.pos = nearest;
    bool const isMoved = key == curve_.keyAt(i) || curve_.setKey(i, key);
    if (!isMoved || nearest != to) {
        emit refused(tr("A key has to stay between its neighbors."));
    }
}

void CurvePlot::setType(nyx::KeyType type) {
    if (current_.key < 0) {
        return;
    }
    nyx::AnimationKey key = curve_.keyAt(current_.key);
    key.type = type;
    if (curve_.setKey(current_.key, key)) {
        update();
        emit stepped();
    }
}

void CurvePlot::insertAt(float x) {
    int const key = curve_.insertKey(x);
    setCurrent({key, Part::Key});
    emit stepped();
}

void CurvePlot::insertBeside() {
    int const last = curve_.keyCount() - 1;
    if (last < 1) {
        return insertAt(last < 0 ? 0 : curve_.keyAt(0).pos.x + 1);
    }
    int const from = std::clamp(current_.key, 0, last - 1);
    insertAt((curve_.keyAt(from).pos.x + curve_.keyAt(from + 1).pos.x) / 2);
}

void CurvePlot::removeCurrent() {
    if (current_.key >= 0 && curve_.removeKey(current_.key)) {
        setCurrent({std::min(current_.key, curve_.keyCount() - 1), Part::Key});
        emit stepped();
    }
}

QSize CurvePlot::sizeHint() const {
    int const line = fontMetrics().height();
    return {24 * line, 16 * line};
}

QSize CurvePlot::minimumSizeHint() const {
    int const line = fontMetrics().height();
    return {12 * line, 8 * line};
}

void CurvePlot::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QRectF const a = area();
    painter.fillRect(a, palette().color(QPalette::Base));
    painter.setPen(palette().color(QPalette::Mid));
    for (int i = 0; i <= 4; ++i) {
        double const part = i / 4.0;
        double const x = a.left() + part * a.width();
        double const y = a.bottom() - part * a.height();
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawLine(QPointF(x, a.top()), QPointF(x, a.bottom()));
        painter.drawLine(QPointF(a.left(), y), QPointF(a.right(), y));
        painter.setPen(palette().color(QPalette::WindowText));
        QLocale const locale;
        double const line = fontMetrics().height();
        painter.drawText(QRectF(x - 2 * line, a.bottom(), 4 * line, 1.4 * line), Qt::AlignCenter,
                         locale.toString(seen_.left() + part * seen_.width(), 'g', 3));
        painter.drawText(QRectF(0, y - line / 2, 2.8 * line, line),
                         Qt::AlignRight | Qt::AlignVCenter,
                         locale.toString(seen_.top() + part * seen_.height(), 'g', 3));
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(rect());
    paintCurve(painter);
    paintPoints(painter);
}

void CurvePlot::paintCurve(QPainter& painter) const {
    if (curve_.keyCount() == 0) {
        return;
    }
    QPainterPath path(onWidget(curve_.keyAt(0).pos));
    for (int i = 0; i + 1 < curve_.keyCount(); ++i) {
        nyx::AnimationKey const& key = curve_.keyAt(i);
        nyx::AnimationKey const& next = curve_.keyAt(i + 1);
        switch (key.type) {
        case nyx::KeyType::L:
            path.lineTo(onWidget(next.pos));
            break;
        case nyx::KeyType::s:
            path.lineTo(onWidget({next.pos.x, key.pos.y}));
            path.lineTo(onWidget(next.pos));
            break;
        case nyx::KeyType::S:
            path.lineTo(onWidget({key.pos.x, next.pos.y}));
            path.lineTo(onWidget(next.pos));
            break;
        default:
            path.cubicTo(onWidget(key.out), onWidget(next.in), onWidget(next.pos));
        }
    }
    painter.strokePath(path, QPen(palette().color(QPalette::Text), 2));
}

void CurvePlot::paintPoints(QPainter& painter) const {
    double const size = fontMetrics().height() * 0.3;
    QColor const ink = palette().color(QPalette::Text);
    for (int i = 0; i < curve_.keyCount(); ++i) {
        QPointF const key = onWidget(place({i, Part::Key}));
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawLine(onWidget(place({i, Part::In})), key);
        painter.drawLine(key, onWidget(place({i, Part::Out})));
        for (Part const part : parts) {
            bool const isCurrent = Point{i, part} == current_;
            QColor const mark = palette().color(hasFocus() ? QPalette::Highlight : QPalette::Text);
            QPointF const at = onWidget(place({i, part}));
            painter.setPen(QPen(isCurrent ? mark : ink, isCurrent ? 3 : 1));
            painter.setBrush(palette().color(QPalette::Base));
            if (part == Part::Key) {
                painter.drawRect(QRectF(at - QPointF(size, size), at + QPointF(size, size)));
            } else {
                painter.drawEllipse(at, size * 0.8, size * 0.8);
            }
        }
    }
}

void CurvePlot::mouseDoubleClickEvent(QMouseEvent* event) {
    insertAt(fromWidget(event->position()).x);
}

void CurvePlot::keyPressEvent(QKeyEvent* event) {
    int const key = event->key();
    int const x = (key == Qt::Key_Right ? 1 : 0) - (key == Qt::Key_Left ? 1 : 0);
    int const y = (key == Qt::Key_Up ? 1 : 0) - (key == Qt::Key_Down ? 1 : 0);
    if ((x != 0 || y != 0) && current_.key >= 0) {
        bool const isLarge = (event->modifiers() & Qt::ShiftModifier) != 0;
        float const step = isLarge ? 0.01F : 0.001F;
        moveCurrent(sum(place(current_), {float(x) * step, float(y) * step}));
        emit stepped();
    } else if (key == Qt::Key_Delete) {
        removeCurrent();
    } else {
        QWidget::keyPressEvent(event);
    }
}

bool CurvePlot::focusNextPrevChild(bool next) {
    int const count = 3 * curve_.keyCount();
    int const wanted = 3 * current_.key + static_cast<int>(current_.part) + (next ? 1 : -1);
    if (hasFocus() && current_.key >= 0 && wanted >= 0 && wanted < count) {
        setCurrent({wanted / 3, parts[wanted % 3]});
        return true;
    }
    return QWidget::focusNextPrevChild(next);
}

} // namespace workbench
