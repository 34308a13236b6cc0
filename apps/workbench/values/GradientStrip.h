#pragma once

#include "zsg/values/ColorGradient.h"

#include <QWidget>

#include <utility>

namespace workbench {

/// A gradient as a strip, with a handle below it for each stop. Stops are dragged, and moved by
/// arrows (Shift for larger steps); Tab goes to the next one, Delete takes one away, a double click
/// asks for a new one. Colors blend in linear light; slopes are the renderer's and not shown.
class GradientStrip final : public QWidget {
    Q_OBJECT

public:
    explicit GradientStrip(QWidget* parent = nullptr);

    void setGradient(zsg::ColorGradient const& gradient);
    [[nodiscard]] zsg::ColorGradient const& gradient() const { return gradient_; }
    /// The stop that is worked on; -1 without any.
    [[nodiscard]] int current() const { return current_; }
    void setCurrent(int stop);
    /// Puts another one in the place of the current stop, and back in order.
    void replaceCurrent(zsg::ColorGradientStop const& stop);
    void removeCurrent();
    /// A new stop in the color that is there already.
    void addAt(float location);
    /// Between the current stop and the one behind it, or before it when it is the last.
    void addBeside();
    /// Where a location is on the strip.
    [[nodiscard]] QPointF handleOf(float location) const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    void currentChanged();
    void pressed();
    void moved();
    void released();
    void cancelled();
    void stepped();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    [[nodiscard]] QRect strip() const;
    [[nodiscard]] float locationAt(double x) const;
    [[nodiscard]] nyxColor_rgba colorAt(float location) const;
    [[nodiscard]] bool takeStop(QPointF const& at);
    void moveCurrent(float location);
    void paintHandle(QPainter& painter, int stop) const;

    zsg::ColorGradient gradient_;
    std::pair<float, float> span_{0, 1}; ///< of the locations that are shown
    int current_ = -1;
};

} // namespace workbench
