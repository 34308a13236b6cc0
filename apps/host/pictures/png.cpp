#include "host/pictures/png.h"

#include "host/Arguments.h"
#include "host/pictures/rasterPng.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace app {

namespace {

/// More takes longer and more memory than who asks for a picture expects; Qt's limit for one side.
constexpr double mostPixels = 64e6;
constexpr double longestSide = 32767;

QPointF qt(shape::Point const& p) { return {p.x, p.y}; }

QColor qt(ColorBytes const& c) { return {c[0], c[1], c[2], c[3]}; }

class Painter {
public:
    Painter(QImage& image, Theme theme) : painter_(&image), theme_(theme) {
        painter_.setRenderHint(QPainter::Antialiasing);
        painter_.setRenderHint(QPainter::SmoothPixmapTransform);
    }

    void add(shape::Rectangle const& r) {
        use(r.fill, r.outline);
        QRectF const area(qt(r.corner), QSizeF(r.width, r.height));
        if (r.radius > 0) {
            painter_.drawRoundedRect(area, r.radius, r.radius);
        } else {
            painter_.drawRect(area);
        }
    }

    void add(shape::Path const& path) {
        use(path.fill, path.stroke);
        QPainterPath drawn;
        auto const* next = path.points.data();
        for (auto const step : path.steps) {
            switch (step) {
            case shape::Path::Step::Move:
                drawn.moveTo(qt(*next++));
                break;
            case shape::Path::Step::Line:
                drawn.lineTo(qt(*next++));
                break;
            case shape::Path::Step::Cubic:
                drawn.cubicTo(qt(next[0]), qt(next[1]), qt(next[2]));
                next += 3;
                break;
            case shape::Path::Step::Close:
                drawn.closeSubpath();
                break;
            }
        }
        painter_.setRenderHint(QPainter::Antialiasing, !path.crisp);
        painter_.drawPath(drawn);
        painter_.setRenderHint(QPainter::Antialiasing);
    }

    void add(shape::Text const& text) {
        QFont font(QStringList{"Helvetica", "Arial", "DejaVu Sans"});
        font.setStyleHint(QFont::SansSerif);
        font.setPixelSize(static_cast<int>(text.size));
        font.setBold(text.bold);
        painter_.setFont(font);
        painter_.setPen(qt(inkColor(text.ink, theme_)));
        QString const shown = QString::fromStdString(text.text);
        double const width = QFontMetricsF(font).horizontalAdvance(shown);
        double const before = text.anchor == shape::Text::Anchor::Start    ? 0
                              : text.anchor == shape::Text::Anchor::Middle ? width / 2
                                                                           : width;
        painter_.save();
        painter_.translate(qt(text.baseline));
        painter_.rotate(text.upwards ? -90 : 0);
        painter_.drawText(QPointF(-before, 0), shown);
        painter_.restore();
    }

    void add(shape::Raster const& raster) {
        QImage const image(raster.rgba.data(), raster.columns, raster.rows,
                           QImage::Format_RGBA8888);
        painter_.drawImage(QRectF(qt(raster.corner), QSizeF(raster.width, raster.height)), image);
    }

private:
    void use(shape::Fill const& fill, shape::Stroke const& stroke) {
        painter_.setPen(Qt::NoPen);
        if (stroke.width > 0) {
            painter_.setPen(QPen(qt(inkColor(stroke.ink, theme_)), stroke.width, Qt::SolidLine,
                                 Qt::FlatCap, Qt::RoundJoin));
        }
        painter_.setBrush(Qt::NoBrush);
        if (auto const* const ink = std::get_if<Ink>(&fill)) {
            painter_.setBrush(qt(inkColor(*ink, theme_)));
        } else if (auto const* const color = std::get_if<ColorBytes>(&fill)) {
            painter_.setBrush(qt(*color));
        } else if (auto const* const gradient = std::get_if<shape::LinearGradient>(&fill)) {
            painter_.setBrush(brush(*gradient));
        }
    }

    static QBrush brush(shape::LinearGradient const& gradient) {
        QLinearGradient result(qt(gradient.from), qt(gradient.to));
        result.setInterpolationMode(QGradient::ComponentInterpolation);
        // A second stop at one place would replace the first, so it stands a hair behind.
        constexpr double hair = 1e-7;
        QGradientStops stops;
        for (auto const& stop : gradient.stops) {
            double at = stop.at;
            if (!stops.isEmpty() && at <= stops.last().first) {
                at = stops.last().first + hair;
            }
            stops.append({std::min(at, 1.0), qt(stop.color)});
        }
        result.setStops(stops);
        return result;
    }

    QPainter painter_;
    Theme theme_;
};

/// Qt would end the program, or write boxes.
void checkText() {
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance())) {
        throw CommandError("this program cannot write text into a .png");
    }
    if (QFontDatabase::families().isEmpty()) {
        throw CommandError("there is no font to write into a .png with");
    }
}

} // namespace

std::string png(Picture const& picture, Theme theme) {
    if (picture.width > longestSide || picture.height > longestSide ||
        picture.width * picture.height > mostPixels) {
        throw CommandError("the picture is too large for a .png, but not for a .svg");
    }
    if (std::ranges::any_of(picture.shapes,
                            [](auto const& s) { return std::holds_alternative<shape::Text>(s); })) {
        checkText();
    }
    QImage image(static_cast<int>(picture.width), static_cast<int>(picture.height),
                 QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) {
        throw CommandError("there is not enough memory for the picture");
    }
    image.fill(qt(inkColor(Ink::Paper, theme)));
    {
        Painter painter(image, theme);
        for (shape::Shape const& shape : picture.shapes) {
            std::visit([&painter](auto const& s) { painter.add(s); }, shape);
        }
    }
    image.convertTo(QImage::Format_RGBA8888);
    shape::Raster raster{{}, 0, 0, image.width(), image.height(), {}};
    raster.rgba.assign(image.constBits(), image.constBits() + image.sizeInBytes());
    return rasterPng(raster);
}

} // namespace app
