#pragma once

#include "workbench/app/HostCanvas.h"

#include "nyxembedded/BrushSettings.h"
#include "nyxembedded/BrushStroke.h"
#include "nyxembedded/GrowingStroke.h"
#include "nyxembedded/SurfacePicture.h"

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

class ZTaskQueue;

namespace nyx::embedded {
class Painting;
}

namespace workbench {

/// What the canvas does on the render thread, and how it hears of it. Tasks share it, so that it
/// outlives the canvas while one waits.
class HostCanvas::RenderSide : public std::enable_shared_from_this<RenderSide> {
public:
    RenderSide(HostCanvas& receiver, nyx::embedded::Painting& painting, ZTaskQueue& queue);

    // The main thread's part.

    /// Nothing reaches the canvas any more.
    void letGo();
    void setSurface(nyx::SurfaceId id) { surface_ = id.toUint(); }
    /// Queues an update of the picture, unless one waits already.
    void update(bool restart);
    /// Queues a piece of work; what it throws is dropped.
    void run(std::function<void()> work);

    // The render thread's part.

    [[nodiscard]] nyx::embedded::Painting& painting() { return painting_; }
    /// Sends what has become of the picture to the canvas.
    void sendPicture();
    void post(std::function<void(HostCanvas&)> message);

private:
    nyx::embedded::Painting& painting_;
    ZTaskQueue& queue_;
    std::atomic<std::uint32_t> surface_{nyx::SurfaceId::invalidValue};
    std::atomic<bool> updateWaits_ = false;
    std::atomic<bool> restartWaits_ = false;
    std::optional<nyx::embedded::SurfacePicture> picture_;
    std::mutex mutex_;
    HostCanvas* receiver_; ///< null when the canvas has gone
};

/// A stroke that is being made. Samples come from the main thread; all else is the render thread's.
class HostCanvas::Stroke {
public:
    Stroke(RenderSide& side, nyx::SurfaceId surface, std::uint32_t layer,
           nyx::embedded::BrushSettings brush, nyx::embedded::GrowingStroke::Ink ink);

    nyx::SurfaceId const surface;
    std::uint32_t const layer;
    bool const erases;
    bool stepWaits = false; ///< the main thread's: one portion is on its way

    /// True when it is the first since the last step.
    bool add(std::vector<Sample> const& samples);
    [[nodiscard]] bool hasSamples();

    /// Paints the samples that have come since.
    void step();
    void finish();
    /// Puts back what was there before.
    void takeOff();
    [[nodiscard]] nyx::embedded::LayerPixels before() const;
    [[nodiscard]] nyx::embedded::LayerPixels pixels() const;

private:
    void show();

    RenderSide& side_;
    nyx::embedded::BrushSettings brush_;
    std::unique_ptr<nyx::embedded::GrowingStroke> growing_;
    std::mutex mutex_;
    std::vector<nyx::embedded::BrushStroke::Point> samples_;
};

} // namespace workbench
