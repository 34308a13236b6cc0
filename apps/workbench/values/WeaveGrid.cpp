#include "workbench/values/WeaveGrid.h"

#include "workbench/scene/PointerDrag.h"

#include <QImage>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace workbench {

using zsg::WeavePattern;

namespace {

constexpr int smallest = 2; // pixels of a crossing
constexpr int largest = 64;
constexpr int smallestWithLines = 6;
constexpr QRgb warpColor = 0xff2f3b52; // as drafts are drawn: the warp dark
constexpr QRgb weftColor = 0xfff1e9d8;

} // namespace

QImage weaveImage(WeavePattern const& weave, QRect const& cells, QSize const& pixels) {
    QImage image(pixels, QImage::Format_RGB32);
    auto const place = [](int pixel, int count, int all) {
        return static_cast<int>(qint64(pixel) * count / all);
    };
    for (int y = 0; y < pixels.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
        int const row = cells.top() + place(y, cells.height(), pixels.height());
        for (int x = 0; x < pixels.width(); ++x) {
            int const column = cells.left() + place(x, cells.width(), pixels.width());
            line[x] = weave.get(column, row) == WeavePattern::Warp ? warpColor : weftColor;
        }
    }
    return image;
}

WeaveGrid::WeaveGrid(QWidget* parent) : QAbstractScrollArea(parent), cell_(fontMetrics().height()) {
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Crossings"));
    viewport()->setContextMenuPolicy(Qt::PreventContextMenu); // the right button draws
    viewport()->setCursor(Qt::CrossCursor);
    followButton(Qt::LeftButton, WeavePattern::Weft);
    followButton(Qt::RightButton, WeavePattern::Warp);
    describeCursor();
}

void WeaveGrid::followButton(Qt::MouseButton button, WeavePattern::YarnType yarn) {
    auto* const drag = new PointerDrag(
        *viewport(),
        [this](QPointF const& at) {
            last_ = cellAt(at);
            return QRect(0, 0, weave_.numWarp(), weave_.numWeft()).contains(last_);
        },
        button);
    // One crossing is painted by a press alone.
    connect(drag, &PointerDrag::pressed, this, [this, yarn] {
        setFocus(Qt::MouseFocusReason);
        emit pressed();
        cursor_ = last_;
        if (weave_.get(last_.x(), last_.y()) != yarn) {
            drawLine(last_, last_, yarn);
        }
    });
    connect(drag, &PointerDrag::moved, this, [this, yarn](QPointF const& at) {
        QPoint const cell = cellAt(at);
        if (cell != last_) {
            drawLine(last_, cell, yarn);
            last_ = cell;
        }
    });
    connect(drag, &PointerDrag::released, this, &WeaveGrid::released);
    connect(drag, &PointerDrag::cancelled, this, &WeaveGrid::cancelled);
}

void WeaveGrid::setWeave(WeavePattern const& weave) {
    if (weave.numWarp() != weave_.numWarp() || weave.numWeft() != weave_.numWeft()) {
        isFitted_ = true;
    }
    weave_ = weave;
    cursor_.setX(std::clamp(cursor_.x(), 0, weave_.numWarp() - 1));
    cursor_.setY(std::clamp(cursor_.y(), 0, weave_.numWeft() - 1));
    fit();
    describeCursor();
    viewport()->update();
}

/// A small weave fills the view, a large one is seen in part.
void WeaveGrid::fit() {
    if (isFitted_) {
        int const line = fontMetrics().height();
        cell_ = std::clamp(std::min((viewport()->width() - 1) / weave_.numWarp(),
                                    (viewport()->height() - 1) / weave_.numWeft()),
                           line / 2, 2 * line);
    }
    setScrollBars();
}

QSize WeaveGrid::sizeHint() const {
    int const side = 16 * fontMetrics().height();
    return {side, side};
}

QPoint WeaveGrid::cellAt(QPointF const& at) const {
    auto const part = [this](double place, QScrollBar const* bar) {
        return static_cast<int>(std::floor((place + bar->value()) / cell_));
    };
    return {part(at.x(), horizontalScrollBar()), part(at.y(), verticalScrollBar())};
}

QRect WeaveGrid::cellRect(QPoint const& cell) const {
    return {cell.x() * cell_ - horizontalScrollBar()->value(),
            cell.y() * cell_ - verticalScrollBar()->value(), cell_, cell_};
}

void WeaveGrid::drawLine(QPoint const& from, QPoint const& to, WeavePattern::YarnType yarn) {
    // Outside of the weave is nothing, although its coordinates would wrap.
    QRect const all(0, 0, weave_.numWarp(), weave_.numWeft());
    QPoint const way = to - from;
    int const steps = std::max({1, std::abs(way.x()), std::abs(way.y())});
    for (int i = 0; i <= steps; ++i) {
        QPoint const cell =
            from + QPoint(qRound(double(way.x()) * i / steps), qRound(double(way.y()) * i / steps));
        if (all.contains(cell)) {
            weave_.set(cell.x(), cell.y(), yarn);
        }
    }
    viewport()->update();
    emit moved();
}

void WeaveGrid::zoom(int steps) {
    isFitted_ = false;
    QPoint const center = cellAt(QRectF(viewport()->rect()).center());
    cell_ = std::clamp(steps > 0 ? cell_ * 5 / 4 + 1 : cell_ * 4 / 5, smallest, largest);
    setScrollBars();
    horizontalScrollBar()->setValue(center.x() * cell_ - viewport()->width() / 2);
    verticalScrollBar()->setValue(center.y() * cell_ - viewport()->height() / 2);
    viewport()->update();
}

void WeaveGrid::setScrollBars() {
    auto const set = [this](QScrollBar* bar, int cells, int seen) {
        bar->setRange(0, std::max(0, cells * cell_ + 1 - seen));
        bar->setPageStep(seen);
        bar->setSingleStep(cell_);
    };
    set(horizontalScrollBar(), weave_.numWarp(), viewport()->width());
    set(verticalScrollBar(), weave_.numWeft(), viewport()->height());
}

void WeaveGrid::paintEvent(QPaintEvent*) {
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), palette().color(QPalette::Dark));
    QRect const seen(cellAt({0, 0}), cellAt(QPointF(viewport()->width(), viewport()->height())));
    QRect const cells = seen & QRect(0, 0, weave_.numWarp(), weave_.numWeft());
    if (cells.isEmpty()) {
        return;
    }
    QRect const area(cellRect(cells.topLeft()).topLeft(),
                     cellRect(cells.bottomRight()).bottomRight());
    painter.drawImage(area, weaveImage(weave_, cells, cells.size()));
    if (cell_ >= smallestWithLines) {
        painter.setPen(QColor(0x80, 0x80, 0x80));
        for (int x = cells.left(); x <= cells.right() + 1; ++x) {
            int const at = cellRect({x, 0}).left();
            painter.drawLine(at, area.top(), at, area.bottom() + 1);
        }
        for (int y = cells.top(); y <= cells.bottom() + 1; ++y) {
            int const at = cellRect({0, y}).top();
            painter.drawLine(area.left(), at, area.right() + 1, at);
        }
    }
    if (hasFocus()) {
        QRect const cursor = cellRect(cursor_);
        painter.setPen(QPen(Qt::black, 3));
        painter.drawRect(cursor);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRect(cursor);
    }
}

void WeaveGrid::resizeEvent(QResizeEvent*) { fit(); }

void WeaveGrid::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Left:
        return moveCursor({-1, 0});
    case Qt::Key_Right:
        return moveCursor({1, 0});
    case Qt::Key_Up:
        return moveCursor({0, -1});
    case Qt::Key_Down:
        return moveCursor({0, 1});
    case Qt::Key_Plus:
        return zoom(1);
    case Qt::Key_Minus:
        return zoom(-1);
    case Qt::Key_Space:
        weave_.flip(cursor_.x(), cursor_.y());
        describeCursor();
        viewport()->update();
        emit stepped();
        return;
    default:
        QAbstractScrollArea::keyPressEvent(event);
    }
}

void WeaveGrid::moveCursor(QPoint const& by) {
    cursor_.setX(std::clamp(cursor_.x() + by.x(), 0, weave_.numWarp() - 1));
    cursor_.setY(std::clamp(cursor_.y() + by.y(), 0, weave_.numWeft() - 1));
    QRect const seen = viewport()->rect();
    QRect const cell = cellRect(cursor_);
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + std::min(0, cell.left()) +
                                    std::max(0, cell.right() - seen.right()));
    verticalScrollBar()->setValue(verticalScrollBar()->value() + std::min(0, cell.top()) +
                                  std::max(0, cell.bottom() - seen.bottom()));
    describeCursor();
    viewport()->update();
}

void WeaveGrid::describeCursor() {
    bool const isWarp = weave_.get(cursor_.x(), cursor_.y()) == WeavePattern::Warp;
    setAccessibleDescription(tr("Column %1, row %2: %3 on top")
                                 .arg(cursor_.x() + 1)
                                 .arg(cursor_.y() + 1)
                                 .arg(isWarp ? tr("warp") : tr("weft")));
}

void WeaveGrid::wheelEvent(QWheelEvent* event) {
    if ((event->modifiers() & Qt::ControlModifier) != 0) {
        zoom(event->angleDelta().y() > 0 ? 1 : -1);
        event->accept();
    } else {
        QAbstractScrollArea::wheelEvent(event);
    }
}

void WeaveGrid::focusInEvent(QFocusEvent*) { viewport()->update(); }

void WeaveGrid::focusOutEvent(QFocusEvent*) { viewport()->update(); }

} // namespace workbench
