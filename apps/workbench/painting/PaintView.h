#pragma once

#include "workbench/painting/Canvas.h"
#include "workbench/painting/PictureLevels.h"

#include <QPointF>
#include <QWidget>

#include <memory>
#include <optional>

namespace workbench {

class EditDrag;
class Scene;

/// The picture of the surface, to look at and to paint on.
///
/// A pen paints with its pressure and erases with its other end; its mouse events are ignored. The
/// wheel zooms, the middle button (or the left one with the space bar) moves the picture, arrow
/// keys too; Escape takes off the stroke that is being made.
///
/// Without a pointer: Ctrl and arrow keys move a pen over the picture (with Shift by a texel),
/// Return sets it down and lifts it.
class PaintView final : public QWidget {
    Q_OBJECT

public:
    PaintView(Scene& scene, Canvas& canvas, QWidget* parent = nullptr);
    ~PaintView() override;

    void setErasing(bool erasing) { erasing_ = erasing; }
    /// Shows all of the picture, and goes on doing so when the size changes.
    void fit();
    /// A dot of the screen for every texel.
    void showActualSize();
    /// In or out, around the middle.
    void zoomBy(double factor);

    /// Pixels per texel.
    [[nodiscard]] double zoom() const { return zoom_; }
    /// Where a texel's upper left corner is seen.
    [[nodiscard]] QPointF fromTexel(QPointF const& texel) const;
    [[nodiscard]] QPointF toTexel(QPointF const& place) const;

    [[nodiscard]] QSize sizeHint() const override;

signals:
    void zoomChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void tabletEvent(QTabletEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;

private:
    void take(Canvas::Picture const& picture);
    void zoomAround(QPointF const& place, double factor);
    void begin(QPointF const& at, double pressure, Canvas::Ink ink);
    void sample(QPointF const& at, double pressure);
    void showCursor();
    void moveKeyPen(QPoint const& direction, bool isFine);
    void toggleKeyPen();

    Scene& scene_;
    Canvas& canvas_;
    PictureLevels picture_;
    QPointF center_; ///< the texel in the middle
    double zoom_ = 1;
    bool isFitted_ = true;
    bool erasing_ = false;
    bool isPenDown_ = false;
    bool isSpaceDown_ = false;
    std::optional<QPointF> moving_; ///< where the pointer was that moves the picture
    std::optional<QPointF> keyPen_; ///< texel at which the pen is that keys move
    std::unique_ptr<EditDrag> stroke_;
};

} // namespace workbench
