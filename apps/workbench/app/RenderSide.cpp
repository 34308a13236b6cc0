#include "workbench/app/RenderSide.h"

#include "nyxembedded/Painting.h"
#include "ztask/ZTask.h"
#include "ztask/ZTaskQueue.h"

#include <QMetaObject>

#include <utility>

namespace workbench {

using nyx::embedded::GrowingStroke;
using nyx::embedded::LayerPixels;

namespace {

class Work final : public ZTask {
public:
    explicit Work(std::function<void()> work) : work_(std::move(work)) { setDeleteOnDone(true); }
    void run() override {
        try {
            work_();
        } catch (...) {
            // Out of memory: the picture and the layer stay as they were, the next update shows it.
        }
    }

private:
    std::function<void()> work_;
};

/// As painters of windows like it best.
QImage toImage(nyx::embedded::Image const& image) {
    return QImage(image.rgba.data(), image.width, image.height, qsizetype{4} * image.width,
                  QImage::Format_RGBA8888_Premultiplied)
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace

HostCanvas::RenderSide::RenderSide(HostCanvas& receiver, nyx::embedded::Painting& painting,
                                   ZTaskQueue& queue)
    : painting_(painting), queue_(queue), receiver_(&receiver) {}

void HostCanvas::RenderSide::letGo() {
    std::lock_guard const guard(mutex_);
    receiver_ = nullptr;
}

void HostCanvas::RenderSide::post(std::function<void(HostCanvas&)> message) {
    std::lock_guard const guard(mutex_);
    if (receiver_) {
        QMetaObject::invokeMethod(
            receiver_, [canvas = receiver_, message = std::move(message)] { message(*canvas); },
            Qt::QueuedConnection);
    }
}

void HostCanvas::RenderSide::run(std::function<void()> work) {
    queue_.addBlockingRenderTask(std::make_unique<Work>(std::move(work)).release());
}

void HostCanvas::RenderSide::update(bool restart) {
    restartWaits_ = restartWaits_ || restart;
    if (!updateWaits_.exchange(true)) {
        run([side = shared_from_this()] {
            side->updateWaits_ = false;
            side->sendPicture();
        });
    }
}

void HostCanvas::RenderSide::sendPicture() {
    if (!picture_ || restartWaits_.exchange(false)) {
        picture_.emplace(painting_);
    }
    auto const update = picture_->update(nyx::SurfaceId(surface_));
    Picture picture{update.resolution, update.isNew, {}};
    for (auto const& part : update.parts) {
        picture.parts.push_back({{part.x, part.y}, toImage(part.image)});
    }
    post([picture](HostCanvas& canvas) { canvas.takePicture(picture); });
}

HostCanvas::Stroke::Stroke(RenderSide& side, nyx::SurfaceId onSurface, std::uint32_t onLayer,
                           nyx::embedded::BrushSettings brush, GrowingStroke::Ink ink)
    : surface(onSurface),
      layer(onLayer),
      erases(ink == GrowingStroke::Ink::Erase),
      side_(side),
      brush_(std::move(brush)) {}

bool HostCanvas::Stroke::add(std::vector<Sample> const& samples) {
    std::lock_guard const guard(mutex_);
    bool const isFirst = samples_.empty();
    for (Sample const& sample : samples) {
        samples_.push_back({sample.x, sample.y, sample.pressure});
    }
    return isFirst;
}

bool HostCanvas::Stroke::hasSamples() {
    std::lock_guard const guard(mutex_);
    return !samples_.empty();
}

void HostCanvas::Stroke::step() {
    std::vector<nyx::embedded::BrushStroke::Point> points;
    {
        std::lock_guard const guard(mutex_);
        points.swap(samples_);
    }
    if (!growing_) {
        auto before = side_.painting().pixels(surface, layer);
        if (!before) {
            return;
        }
        growing_ = std::make_unique<GrowingStroke>(*std::move(before), brush_,
                                                   erases ? GrowingStroke::Ink::Erase
                                                          : GrowingStroke::Ink::Paint);
    }
    growing_->add(points);
    show();
}

void HostCanvas::Stroke::finish() {
    step();
    if (growing_) {
        growing_->end();
        show();
    }
}

void HostCanvas::Stroke::takeOff() {
    if (growing_) {
        side_.painting().setPixels(surface, layer, growing_->before());
    }
}

void HostCanvas::Stroke::show() { side_.painting().setPixels(surface, layer, growing_->pixels()); }

LayerPixels HostCanvas::Stroke::before() const {
    return growing_ ? growing_->before() : LayerPixels();
}

LayerPixels HostCanvas::Stroke::pixels() const {
    return growing_ ? growing_->pixels() : LayerPixels();
}

} // namespace workbench
