#pragma once

#include "nyxrender/Ids.h"

#include <QImage>
#include <QObject>
#include <QPoint>
#include <QSize>
#include <QString>

#include <cstdint>
#include <memory>
#include <vector>

namespace zsg {
class IPainterBrush;
class IPainterSurface;
} // namespace zsg

namespace workbench {

/// What the panels of painting want of the host: pixels, and strokes that change them. The library
/// knows neither, only the renderer does. Main thread.
class Canvas : public QObject {
    Q_OBJECT

public:
    /// A place in texels, and how hard the pen was pressed there, 0 to 1.
    struct Sample {
        float x = 0, y = 0;
        float pressure = 1;
    };
    enum class Ink { Paint, Erase };

    /// What has become of the picture. Parts are premultiplied.
    struct Picture {
        struct Part {
            QPoint at;
            QImage image;
        };
        int resolution = 0; ///< 0 when there is no surface
        bool isNew = false; ///< forget the one before
        std::vector<Part> parts;
    };

    using QObject::QObject;

    /// The surfaces that are not deleted, and how each is called.
    struct Surface {
        nyx::SurfaceId id;
        QString name;
    };
    [[nodiscard]] virtual std::vector<Surface> surfaces() const = 0;
    /// The one to work on; null when there is none.
    [[nodiscard]] virtual zsg::IPainterSurface* surface() const = 0;
    virtual void setSurface(nyx::SurfaceId id) = 0;
    /// Makes one and works on it; false when the renderer makes none.
    virtual bool createSurface(int resolution) = 0;

    /// Returns when the renderer has done all that it was told to do.
    virtual void waitForRenderer() = 0;
    /// Asks for what is other than it was told by pictureChanged(). The answer comes later.
    virtual void updatePicture() = 0;
    /// Asks for the whole picture again.
    virtual void restartPicture() = 0;
    /// A layer alone, small; null for an unknown one.
    [[nodiscard]] virtual QImage thumbnail(std::uint32_t layerId, int side) const = 0;

    /// The current brush, made when there is none yet; null without a scene. Keep the handle while
    /// its parameters are used, and let go of it at brushChanged() and with the scene.
    [[nodiscard]] virtual std::shared_ptr<zsg::IPainterBrush> brush() = 0;
    /// A stroke of the current brush, premultiplied.
    [[nodiscard]] virtual QImage brushPreview(QSize const& size) = 0;
    /// Messages for people, empty on success.
    [[nodiscard]] virtual QString loadBrush(QString const& path) = 0;
    [[nodiscard]] virtual QString saveBrush(QString const& path) = 0;
    /// Another brush with the settings that a new one has.
    virtual void resetBrush() = 0;

    /// A stroke on the edit layer, seen while it is made, and one entry of the history in the end.
    /// Empty when it has begun, else why not, for people.
    [[nodiscard]] virtual QString beginStroke(Ink ink) = 0;
    /// The rest is ignored while no stroke is made.
    virtual void addSamples(std::vector<Sample> const& samples) = 0;
    virtual void endStroke() = 0;
    /// Takes what was painted off again; there is no entry.
    virtual void cancelStroke() = 0;
    [[nodiscard]] virtual bool isStroking() const = 0;

signals:
    void pictureChanged(workbench::Canvas::Picture const& picture);
    /// Other surfaces, or another one to work on.
    void surfaceChanged();
    /// Another brush, or settings that somebody else has changed.
    void brushChanged();
};

} // namespace workbench
