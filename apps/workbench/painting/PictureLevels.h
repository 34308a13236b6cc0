#pragma once

#include "workbench/painting/Canvas.h"

#include <QImage>
#include <QRect>

#include <vector>

class QPainter;

namespace workbench {

/// The picture of a surface, kept in halves, quarters and so on as well: seen from far away it
/// neither flickers nor costs more than what is on the screen.
class PictureLevels {
public:
    /// The rectangle that has changed, in texels. When memory does not suffice the picture stays
    /// empty.
    QRect take(Canvas::Picture const& picture);

    [[nodiscard]] int resolution() const { return resolution_; }
    /// Paints the part of the picture that lies within `exposed`. `zoom` is pixels of the painter
    /// per texel, `ratio` dots of the device per pixel, `origin` where texel (0, 0) begins.
    void paint(QPainter& painter, QRect const& exposed, QPointF const& origin, double zoom,
               double ratio) const;

private:
    int resolution_ = 0;
    std::vector<QImage> levels_; ///< the first is the picture itself
};

} // namespace workbench
