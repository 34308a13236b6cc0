#include "workbench/painting/PaintView.h"

#include "workbench/scene/EditDrag.h"
#include "workbench/scene/Scene.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPointingDevice>
#include <QTabletEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace workbench {

namespace {

constexpr double farthest = 1.0 / 64;
constexpr double nearest = 32;
constexpr QRgb surround = 0xff777777; // a grey by which colours can be judged

/// Squares behind what is transparent.
QBrush const& checkers() {
    static QBrush const brush = [] {
        constexpr int side = 8;
        QPixmap pixmap(2 * side, 2 * side);
        pixmap.fill(QColor(0xb4, 0xb4, 0xb4));
        QPainter painter(&pixmap);
        painter.fillRect(0, 0, side, side, QColor(0xc8, 0xc8, 0xc8));
        painter.fillRect(side, side, side, side, QColor(0xc8, 0xc8, 0xc8));
        return QBrush(pixmap);
    }();
    return brush;
}

/// Whether a pen caused a mouse event, so that it has told of itself already.
bool isOfPen(QMouseEvent const& event) {
    return event.pointerType() == QPointingDevice::PointerType::Pen ||
           event.pointerType() == QPointingDevice::PointerType::Eraser;
}

} // namespace

PaintView::PaintView(Scene& scene, Canvas& canvas, QWidget* parent)
    : QWidget(parent), scene_(scene), canvas_(canvas) {
    setObjectName("paintView");
    setAccessibleName(tr("Painted surface"));
    setAccessibleDescription(
        tr("Plus and minus zoom, 0 shows all, arrow keys move the picture; Ctrl and "
           "arrow keys move a pen, Return sets it down and lifts it"));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(fontMetrics().height() * 8, fontMetrics().height() * 8);
    connect(&canvas, &Canvas::pictureChanged, this, &PaintView::take);
    showCursor();
    canvas.restartPicture();
}

PaintView::~PaintView() = default;

QSize PaintView::sizeHint() const { return QSize(24, 18) * fontMetrics().height(); }

QPointF PaintView::fromTexel(QPointF const& texel) const {
    return QPointF(width(), height()) / 2 + (texel - center_) * zoom_;
}

QPointF PaintView::toTexel(QPointF const& place) const {
    return center_ + (place - QPointF(width(), height()) / 2) / zoom_;
}

void PaintView::take(Canvas::Picture const& picture) {
    QRect const changed = picture_.take(picture);
    if (picture.isNew) {
        if (picture.resolution > 0 && picture_.resolution() == 0) {
            scene_.say(tr("There is not enough memory to show this surface."));
        }
        fit();
    } else if (!changed.isEmpty()) {
        QRectF const seen(fromTexel(changed.topLeft()), QSizeF(changed.size()) * zoom_);
        update(seen.toAlignedRect().adjusted(-2, -2, 2, 2)); // what is interpolated around it
    }
}

void PaintView::fit() {
    isFitted_ = true;
    int const texels = std::max(picture_.resolution(), 1);
    center_ = QPointF(texels, texels) / 2;
    zoom_ = std::clamp(std::min(width(), height()) / double(texels), farthest, nearest);
    update();
    emit zoomChanged();
}

void PaintView::showActualSize() { zoomBy(1 / (zoom_ * devicePixelRatioF())); }

void PaintView::zoomBy(double factor) { zoomAround(QPointF(width(), height()) / 2, factor); }

void PaintView::zoomAround(QPointF const& place, double factor) {
    QPointF const texel = toTexel(place);
    zoom_ = std::clamp(zoom_ * factor, farthest, nearest);
    center_ += texel - toTexel(place); // what is under the pointer stays there
    isFitted_ = false;
    update();
    emit zoomChanged();
}

void PaintView::resizeEvent(QResizeEvent* /*event*/) {
    if (isFitted_) {
        fit();
    }
}

void PaintView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    QRect const exposed = event->rect();
    painter.fillRect(exposed, QColor(surround));
    QPointF const origin = fromTexel({0, 0});
    double const side = picture_.resolution() * zoom_;
    QRect const surface = QRectF(origin, QSizeF(side, side)).toAlignedRect() & exposed;
    painter.fillRect(surface, checkers());
    painter.setClipRect(exposed);
    picture_.paint(painter, exposed, origin, zoom_, devicePixelRatioF());
    if (keyPen_ && hasFocus()) {
        int const arm = fontMetrics().height() / 2;
        QPoint const at = fromTexel(*keyPen_).toPoint();
        for (auto const& [color, width] : {std::pair(Qt::white, 3), std::pair(Qt::black, 1)}) {
            painter.setPen(QPen(color, width)); // seen on every ground
            painter.drawLine(at - QPoint(arm, 0), at + QPoint(arm, 0));
            painter.drawLine(at - QPoint(0, arm), at + QPoint(0, arm));
        }
    }
}

void PaintView::moveKeyPen(QPoint const& direction, bool isFine) {
    double const side = picture_.resolution();
    QPointF const seen(std::clamp(center_.x(), 0.0, side), std::clamp(center_.y(), 0.0, side));
    QPointF at =
        keyPen_.value_or(seen) + QPointF(direction) * (isFine ? 1 : std::max(1.0, 8 / zoom_));
    at = {std::clamp(at.x(), 0.0, side), std::clamp(at.y(), 0.0, side)};
    keyPen_ = at;
    if (canvas_.isStroking()) {
        sample(fromTexel(at), 1);
    }
    update();
}

void PaintView::toggleKeyPen() {
    if (canvas_.isStroking()) {
        stroke_->end();
    } else {
        moveKeyPen({}, true); // it is somewhere
        begin(fromTexel(*keyPen_), 1, erasing_ ? Canvas::Ink::Erase : Canvas::Ink::Paint);
    }
}

void PaintView::begin(QPointF const& at, double pressure, Canvas::Ink ink) {
    scene_.endDrags();
    if (QString const why = canvas_.beginStroke(ink); !why.isEmpty()) {
        scene_.say(why);
        return;
    }
    // Nothing is pushed on the way: the canvas shows the stroke, and its end is the entry.
    stroke_ = std::make_unique<EditDrag>(scene_, *this,
                                         EditDrag::Target{[this](EditDrag::Step step) {
                                                              if (step == EditDrag::Step::Last) {
                                                                  canvas_.endStroke();
                                                              }
                                                          },
                                                          {}});
    connect(stroke_.get(), &EditDrag::ended, this,
            [] { QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, true); });
    // Every place that the pointer was at counts for a stroke.
    QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, false);
    stroke_->move(); // a press is a dot
    sample(at, pressure);
}

void PaintView::sample(QPointF const& at, double pressure) {
    QPointF const texel = toTexel(at);
    canvas_.addSamples({{static_cast<float>(texel.x()), static_cast<float>(texel.y()),
                         static_cast<float>(pressure)}});
}

void PaintView::mousePressEvent(QMouseEvent* event) {
    if (moving_ || canvas_.isStroking()) {
        return; // one button at a time
    }
    bool const isMove =
        event->button() == Qt::MiddleButton || (event->button() == Qt::LeftButton && isSpaceDown_);
    if (isMove) {
        moving_ = event->position();
        showCursor();
    } else if (event->button() == Qt::LeftButton && !isPenDown_ && !isOfPen(*event)) {
        begin(event->position(), 1, erasing_ ? Canvas::Ink::Erase : Canvas::Ink::Paint);
    }
}

void PaintView::mouseMoveEvent(QMouseEvent* event) {
    if (moving_) {
        center_ -= (event->position() - *moving_) / zoom_;
        moving_ = event->position();
        isFitted_ = false;
        update();
    } else if (!isPenDown_ && !isOfPen(*event)) {
        sample(event->position(), 1);
    }
}

void PaintView::mouseReleaseEvent(QMouseEvent* event) {
    if (moving_) {
        moving_.reset();
        showCursor();
    } else if (event->button() == Qt::LeftButton && !isPenDown_ && stroke_) {
        stroke_->end();
    }
}

void PaintView::tabletEvent(QTabletEvent* event) {
    event->accept(); // or the same movement would come once more, as the mouse's
    switch (event->type()) {
    case QEvent::TabletPress:
        if (event->button() == Qt::LeftButton) {
            setFocus(Qt::MouseFocusReason); // which a pen does not bring along
            isPenDown_ = true;
            bool const isOtherEnd = event->pointerType() == QPointingDevice::PointerType::Eraser;
            begin(event->position(), event->pressure(),
                  isOtherEnd || erasing_ ? Canvas::Ink::Erase : Canvas::Ink::Paint);
        }
        break;
    case QEvent::TabletMove:
        // A pen that is lifted tells of itself once more: it would end the stroke in a blot.
        if (isPenDown_ && event->pressure() > 0) {
            sample(event->position(), event->pressure());
        }
        break;
    case QEvent::TabletRelease:
        if (event->button() == Qt::LeftButton) { // not those of the barrel
            isPenDown_ = false;
            if (stroke_) {
                stroke_->end();
            }
        }
        break;
    default:
        break;
    }
}

void PaintView::wheelEvent(QWheelEvent* event) {
    constexpr double notch = 120; // eighths of a degree
    zoomAround(event->position(), std::exp2(event->angleDelta().y() / notch / 4));
}

void PaintView::keyPressEvent(QKeyEvent* event) {
    QPointF const step = QPointF(width(), height()) / 8 / zoom_;
    auto const go = [&](int x, int y) {
        if (event->modifiers().testFlag(Qt::ControlModifier)) {
            return moveKeyPen({x, y}, event->modifiers().testFlag(Qt::ShiftModifier));
        }
        center_ += QPointF(x * step.x(), y * step.y());
        isFitted_ = false;
        update();
    };
    switch (event->key()) {
    case Qt::Key_Escape:
        if (!canvas_.isStroking()) {
            return QWidget::keyPressEvent(event);
        }
        canvas_.cancelStroke();
        return stroke_->end();
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return event->isAutoRepeat() ? event->accept() : toggleKeyPen();
    case Qt::Key_Space:
        isSpaceDown_ = true;
        return showCursor();
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return zoomBy(std::exp2(0.5));
    case Qt::Key_Minus:
        return zoomBy(std::exp2(-0.5));
    case Qt::Key_0:
        return fit();
    case Qt::Key_1:
        return showActualSize();
    case Qt::Key_Left:
        return go(-1, 0);
    case Qt::Key_Right:
        return go(1, 0);
    case Qt::Key_Up:
        return go(0, -1);
    case Qt::Key_Down:
        return go(0, 1);
    default:
        QWidget::keyPressEvent(event);
    }
}

void PaintView::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat()) {
        isSpaceDown_ = false;
        showCursor();
    }
    QWidget::keyReleaseEvent(event);
}

bool PaintView::event(QEvent* event) {
    if (event->type() == QEvent::FocusOut || event->type() == QEvent::WindowDeactivate) {
        isSpaceDown_ = isPenDown_ = false; // nobody may tell of their end
        showCursor();
        update(); // the keys' pen
    } else if (event->type() == QEvent::UngrabMouse) {
        moving_.reset();
    }
    return QWidget::event(event);
}

void PaintView::showCursor() {
    setCursor(moving_ ? Qt::ClosedHandCursor : isSpaceDown_ ? Qt::OpenHandCursor : Qt::CrossCursor);
}

} // namespace workbench
