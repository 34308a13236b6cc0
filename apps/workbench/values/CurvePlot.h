#pragma once

#include "zsg/values/AnimationCurve.h"

#include <QRectF>
#include <QWidget>

namespace workbench {

/// A curve with its keys and their handles, which are dragged and moved by arrows (Shift for larger
/// steps). Tab goes through the keys and their handles, also those at one place; a double click
/// makes a key, Delete takes one away. What the curve refuses is not done, and said.
class CurvePlot final : public QWidget {
    Q_OBJECT

public:
    enum class Part { In, Key, Out };
    struct Point {
        int key = -1; ///< -1: none
        Part part = Part::Key;

        friend bool operator==(Point const&, Point const&) = default;
    };

    explicit CurvePlot(QWidget* parent = nullptr);

    void setCurve(zsg::AnimationCurve const& curve);
    [[nodiscard]] zsg::AnimationCurve const& curve() const { return curve_; }
    [[nodiscard]] Point current() const { return current_; }
    void setCurrent(Point point);
    /// Where a point lies, in the curve's units; and where in the widget.
    [[nodiscard]] nyxVector2f place(Point point) const;
    [[nodiscard]] QPointF onWidget(nyxVector2f const& place) const;

    /// Moves the current point as near to the place as the curve allows; a key takes its handles
    /// along. Says why when it does not get there.
    void moveCurrent(nyxVector2f const& to);
    void setType(nyx::KeyType type);
    void insertAt(float x);
    /// Between the current key and the one behind it, or before it when it is the last.
    void insertBeside();
    void removeCurrent();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    void currentChanged();
    void pressed();
    void moved();
    void released();
    void cancelled();
    void stepped();
    void refused(QString const& why);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    [[nodiscard]] QRectF area() const;
    [[nodiscard]] nyxVector2f fromWidget(QPointF const& at) const;
    [[nodiscard]] bool takePoint(QPointF const& at);
    void showAll();
    void moveKey(nyxVector2f const& to);
    void paintCurve(QPainter& painter) const;
    void paintPoints(QPainter& painter) const;

    zsg::AnimationCurve curve_;
    Point current_;
    QRectF seen_{0, 0, 1, 1}; ///< in the curve's units, y upwards
    bool isDragging_ = false;
};

} // namespace workbench
