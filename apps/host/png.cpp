#include "host/png.h"

#include "host/Arguments.h"
#include "host/Picture.h"
#include "host/sRGB.h"

#include "nyxembedded/Image.h"

#include <QBuffer>
#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPolygonF>

namespace app {

namespace {

QColor qtColor(nyxColor_rgba const& c) {
    auto const [red, green, blue, alpha] = sRGBFromLinear(c);
    return {red, green, blue, alpha};
}

std::string encoded(QImage const& image) {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    if (!image.save(&bytes, "PNG")) {
        throw CommandError("the picture cannot be made a .png");
    }
    return bytes.data().toStdString();
}

} // namespace

std::string pngBytes(Picture const& picture) {
    QImage image(static_cast<int>(picture.width()), static_cast<int>(picture.height()),
                 QImage::Format_ARGB32);
    if (image.isNull()) {
        throw CommandError("the picture is too large");
    }
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        for (Picture::Shape const& s : picture.shapes()) {
            QPolygonF points;
            for (Picture::Point const& p : s.points) {
                points << QPointF(p.x, p.y);
            }
            switch (s.kind) {
            case Picture::Shape::Rectangle:
                painter.fillRect(QRectF(points.first(), QSizeF(s.width, s.height)),
                                 qtColor(s.color));
                break;
            case Picture::Shape::Line:
                painter.setPen(QPen(qtColor(s.color), s.width));
                painter.drawPolyline(points);
                break;
            case Picture::Shape::Circle:
                painter.setPen(Qt::NoPen);
                painter.setBrush(qtColor(s.color));
                painter.drawEllipse(points.first(), s.width, s.width);
                break;
            case Picture::Shape::Text:
                break;
            }
        }
    }
    return encoded(image);
}

std::string pngBytes(nyx::embedded::Image const& image) {
    QImage const view(image.rgba.data(), image.width, image.height,
                      QImage::Format_RGBA8888_Premultiplied);
    return encoded(view);
}

} // namespace app
