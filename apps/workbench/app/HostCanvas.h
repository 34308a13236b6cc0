#pragma once

#include "workbench/painting/Canvas.h"

#include <cstddef>
#include <memory>

namespace app {
class Host;
}

namespace workbench {

class Scene;

/// Painting on the surfaces of the embedded renderer. It shares the chosen surface and the brush
/// with the commands of the console. What it paints it paints on the render thread.
class HostCanvas final : public Canvas {
    Q_OBJECT

public:
    /// What the strokes of the history may keep, in bytes, before the oldest entries go.
    static constexpr std::size_t defaultBudget = std::size_t{256} << 20;

    /// Both are borrowed.
    HostCanvas(app::Host& host, Scene& scene, QObject* parent = nullptr);
    ~HostCanvas() override;

    [[nodiscard]] std::vector<Surface> surfaces() const override;
    [[nodiscard]] zsg::IPainterSurface* surface() const override;
    void setSurface(nyx::SurfaceId id) override;
    bool createSurface(int resolution) override;

    void waitForRenderer() override;
    void updatePicture() override;
    void restartPicture() override;
    [[nodiscard]] QImage thumbnail(std::uint32_t layerId, int side) const override;

    [[nodiscard]] std::shared_ptr<zsg::IPainterBrush> brush() override;
    [[nodiscard]] QImage brushPreview(QSize const& size) override;
    [[nodiscard]] QString loadBrush(QString const& path) override;
    [[nodiscard]] QString saveBrush(QString const& path) override;
    void resetBrush() override;

    [[nodiscard]] QString beginStroke(Ink ink) override;
    void addSamples(std::vector<Sample> const& samples) override;
    void endStroke() override;
    void cancelStroke() override;
    [[nodiscard]] bool isStroking() const override { return stroke_ != nullptr; }

    /// Commands of the console may have changed what no event tells of.
    void noteCommands();
    void setHistoryBudget(std::size_t bytes) { budget_ = bytes; }
    /// What the strokes of the history keep at this moment.
    [[nodiscard]] std::size_t historyBytes() const;

private:
    class RenderSide;
    class Stroke;

    void takePicture(Picture const& picture);
    void stepStroke();
    void trimHistory();

    app::Host& host_;
    Scene& scene_;
    std::shared_ptr<RenderSide> renderSide_;
    std::shared_ptr<Stroke> stroke_;
    std::size_t budget_ = defaultBudget;
    bool toldOfTrimming_ = false;
};

} // namespace workbench
