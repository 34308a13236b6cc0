#pragma once

#include "zsg/values/WeavePattern.h"

#include <QAbstractScrollArea>
#include <QPoint>

namespace workbench {

/// The crossings of a weave, dark where the warp lies on top. The left button puts the weft on top,
/// the right one the warp, along the whole way of the pointer; arrows walk, Space turns a crossing
/// over, Ctrl with the wheel or plus and minus zoom. Only what is seen is drawn.
class WeaveGrid final : public QAbstractScrollArea {
    Q_OBJECT

public:
    explicit WeaveGrid(QWidget* parent = nullptr);

    void setWeave(zsg::WeavePattern const& weave);
    /// As it is painted on at this moment.
    [[nodiscard]] zsg::WeavePattern const& weave() const { return weave_; }
    /// Where a crossing is in the viewport.
    [[nodiscard]] QRect cellRect(QPoint const& cell) const;
    void zoom(int steps);

    [[nodiscard]] QSize sizeHint() const override;

signals:
    void pressed();
    void moved();
    void released();
    void cancelled();
    /// By a key.
    void stepped();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void followButton(Qt::MouseButton button, zsg::WeavePattern::YarnType yarn);
    [[nodiscard]] QPoint cellAt(QPointF const& at) const;
    /// Sets every crossing between two, both included.
    void drawLine(QPoint const& from, QPoint const& to, zsg::WeavePattern::YarnType yarn);
    void moveCursor(QPoint const& by);
    void setScrollBars();
    void fit();
    void describeCursor();

    zsg::WeavePattern weave_;
    QPoint cursor_;
    QPoint last_;          ///< the cell where the drag is
    int cell_;             ///< side of a crossing, pixels
    bool isFitted_ = true; ///< to the viewport, until somebody zooms
};

/// The crossings of a region, looked at in as many places as there are pixels; coordinates wrap.
[[nodiscard]] QImage weaveImage(zsg::WeavePattern const& weave, QRect const& cells,
                                QSize const& pixels);

} // namespace workbench
