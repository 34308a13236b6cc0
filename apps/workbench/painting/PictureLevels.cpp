#include "workbench/painting/PictureLevels.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace workbench {

namespace {

constexpr int smallest = 64; ///< texels of the smallest level

/// Half a length; an odd one ends within a texel.
int half(int length) { return (length + 1) / 2; }

void copyInto(QImage& to, QImage const& from, QPoint const& at) {
    QPainter painter(&to);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(at, from);
}

} // namespace

QRect PictureLevels::take(Canvas::Picture const& picture) {
    if (picture.isNew) {
        resolution_ = picture.resolution;
        levels_.clear();
        for (int side = resolution_; side > 0; side = side > smallest ? half(side) : 0) {
            levels_.emplace_back(side, side, QImage::Format_ARGB32_Premultiplied);
            if (levels_.back().isNull()) {
                levels_.clear();
                resolution_ = 0;
                break;
            }
            levels_.back().fill(Qt::transparent);
        }
    }
    QRect changed;
    for (Canvas::Picture::Part const& part : picture.parts) {
        if (levels_.empty()) {
            break;
        }
        changed |= QRect(part.at, part.image.size());
        // Parts begin at multiples of a tile's edge, so that halves meet without a seam; where the
        // levels get finer than that, a part grows to whole texels of the level.
        copyInto(levels_[0], part.image, part.at);
        QRect area(part.at, part.image.size());
        for (std::size_t i = 1; i < levels_.size(); ++i) {
            QPoint const from(area.left() / 2, area.top() / 2);
            QPoint const to(half(area.right() + 1), half(area.bottom() + 1));
            area = QRect(from, QSize(to.x() - from.x(), to.y() - from.y()));
            QRect const source = QRect(area.topLeft() * 2, area.size() * 2) & levels_[i - 1].rect();
            copyInto(levels_[i],
                     levels_[i - 1].copy(source).scaled(area.size(), Qt::IgnoreAspectRatio,
                                                        Qt::SmoothTransformation),
                     from);
        }
    }
    return changed;
}

void PictureLevels::paint(QPainter& painter, QRect const& exposed, QPointF const& origin,
                          double zoom, double ratio) const {
    if (levels_.empty()) {
        return;
    }
    auto const finest = static_cast<int>(std::floor(std::log2(1 / (zoom * ratio))));
    int const level = std::clamp(finest, 0, static_cast<int>(levels_.size()) - 1);
    QImage const& image = levels_[static_cast<std::size_t>(level)];
    double const scale = zoom * std::exp2(level); // pixels per texel of the level
    QRectF const wanted((exposed.x() - origin.x()) / scale, (exposed.y() - origin.y()) / scale,
                        exposed.width() / scale, exposed.height() / scale);
    // One texel around, so that what is interpolated does not know about the exposed edge.
    QRect const source = wanted.toAlignedRect().adjusted(-1, -1, 1, 1) & image.rect();
    if (source.isEmpty()) {
        return;
    }
    // Texels that are larger than dots are to be seen as what they are.
    painter.setRenderHint(QPainter::SmoothPixmapTransform, scale * ratio < 1);
    painter.drawImage(QRectF(origin.x() + source.x() * scale, origin.y() + source.y() * scale,
                             source.width() * scale, source.height() * scale),
                      image, QRectF(source));
}

} // namespace workbench
