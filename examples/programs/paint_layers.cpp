// 3D painting: the layers of a surface are edited through the library, which queues what the
// renderer has to do; strokes are the application's own tasks on the same queue.

#include <nyxembedded/Host.h>
#include <nyxembedded/Image.h>
#include <nyxembedded/Painting.h>
#include <nyxembedded/Stroke.h>
#include <zsg/core/ISceneGraph.h>
#include <zsg/painting/IPainter.h>
#include <zsg/painting/IPainterManager.h>
#include <zsg/painting/IPainterSurface.h>
#include <ztask/ZTask.h>

#include <functional>
#include <iostream>
#include <utility>

namespace {

class Task final : public ZTask {
public:
    explicit Task(std::function<void()> work) : work_(std::move(work)) { setDeleteOnDone(true); }
    void run() override { work_(); }

private:
    std::function<void()> work_;
};

} // namespace

int main() {
    nyx::embedded::Host host; // with a render thread
    zsg::IPainter& painter = *host.root().painterManager()->painter();
    nyx::SurfaceId const id = painter.createSurface(256);
    zsg::IPainterSurface& surface = *painter.surface(id);

    auto const show = [&](char const* when) {
        host.taskQueue().waitIdle();
        nyx::embedded::Image const image = host.renderer().painting().composite(id);
        std::uint8_t const* const pixel = &image.rgba[(128u * 256 + 128) * 4];
        std::cout << when << ":";
        for (nyxLayerInfo const& layer : surface.layers()) {
            std::cout << ' ' << (layer.deleted ? "-" : "")
                      << (layer.name ? layer.name : "(unnamed)");
        }
        std::cout << ", in the middle " << int(pixel[0]) << ' ' << int(pixel[1]) << ' '
                  << int(pixel[2]) << '\n';
    };

    surface.setLayerName(0, "Ground");
    surface.setLayerBackgroundColor(0, {0.5f, 0.5f, 0.5f, 1}, true);
    surface.addLayer(0);
    show("two layers");

    // Layers are painted by their ids, which moves do not change.
    std::uint32_t const top = surface.layers()[0].id;
    nyx::embedded::Stroke stroke;
    stroke.points = {{64, 128}, {192, 128}};
    stroke.color = {1, 0, 0, 1};
    host.taskQueue().addBlockingRenderTask(
        new Task([&host, id, top, stroke] { host.renderer().painting().paint(id, top, stroke); }));
    show("painted");
    surface.setLayerBlend(0, nyx::ColorBlendMode::Multiply);
    show("multiplied");

    while (host.undoStack().undo()) { // the stroke is not among it: see PaintCommand
        show("undone");
    }
    return 0;
}
