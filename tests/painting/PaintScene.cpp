#include "painting/PaintScene.h"

#include "zsg/core/Events.h"
#include "zsg/core/SceneGraphPars.h"

#include "nyxrender/nyxCustomSurface.h"
#include "nyxrender/nyxPainter.h"

#include <utility>

PaintScene::~PaintScene() { endRoot(); }

nyx::SurfaceId PaintScene::addSurface(std::vector<std::string> const& layerNames, int resolution) {
    nyx::SurfaceId const id = renderer.painting().addSurface("", resolution);
    nyxPainter_factory& factory = *nyx_painter_factory(scene());
    nyxPainter* const painter = factory.create("svdag_painter");
    nyxCustomSurface& custom = *painter->surface(id);
    auto const count = static_cast<std::uint32_t>(layerNames.size());
    for (std::uint32_t i = 0; i < count; ++i) {
        if (i > 0) {
            custom.add_layer(i, i + 1);
        }
        custom.set_layer_name(i, layerNames[count - 1 - i].c_str());
    }
    factory.release(painter);
    return id;
}

zsg::ISceneGraph& PaintScene::root() {
    if (!root_) {
        zsg::SceneGraphPars pars;
        pars.rtApi = api();
        pars.taskQueue = withTaskQueue ? this : nullptr;
        pars.undoStack = withUndoStack ? &undo : nullptr;
        root_ = zsg::ISceneGraph::create(pars);
        subscription_ = std::make_unique<zsg::Subscription>(
            *root_->eventQueue(), static_cast<zsg::IEventListener&>(*this),
            std::initializer_list<zsg::EventType>{zsg::EventType::PaintLayersUpdated});
        takeJournal();
    }
    return *root_;
}

void PaintScene::endRoot() {
    undo.clear();
    queue.waitIdle();
    subscription_.reset();
    root_.reset();
}

void PaintScene::takeCalls(std::string const& prefix, char const* separator) {
    std::string calls;
    for (std::string const& call : renderer.journal().take()) {
        calls += (calls.empty() ? "" : separator) + call;
    }
    if (!calls.empty()) {
        lines_ += prefix + calls + '\n';
    }
}

void PaintScene::addBlockingRenderTask(ZTask* task) {
    takeCalls("", "\n");
    lines_ += "queued\n";
    queue.addBlockingRenderTask(task);
}

void PaintScene::onEvent(zsg::Event const* event) {
    takeCalls("", "\n");
    auto const& updated = dynamic_cast<zsg::PaintLayersUpdatedEvent const&>(*event);
    lines_ += "event " + std::to_string(updated.surfaceId().toUint()) + '\n';
    if (onPainted) {
        std::exchange(onPainted, nullptr)();
    }
}

std::string PaintScene::happened() {
    takeCalls("", "\n");
    while (queue.step()) {
        takeCalls("task: ", ", ");
    }
    if (!lines_.empty()) {
        lines_.pop_back();
    }
    return std::exchange(lines_, {});
}

std::string PaintScene::trace(std::function<void()> const& what) {
    happened();
    what();
    std::string lines = happened();
    for (std::size_t at = 0; (at = lines.find('\n', at)) != std::string::npos; at += 2) {
        lines.replace(at, 1, "; ");
    }
    return lines;
}

namespace {

void append(std::string& out, bool isEdited, bool deleted, bool visible, std::string const& name) {
    out += (out.empty() ? "" : " ") + std::string(isEdited ? "*" : "") + (deleted ? "-" : "") +
           (visible ? "" : "~") + name;
}

} // namespace

std::string PaintScene::list(zsg::IPainterSurface& surface) {
    std::string out;
    unsigned index = 0;
    for (nyxLayerInfo const& layer : surface.layers()) {
        append(out, index++ == surface.editLayer(), layer.deleted, layer.visible,
               layer.name ? layer.name : "");
    }
    return out;
}

std::string PaintScene::rendererList(nyx::SurfaceId id) {
    auto const info = renderer.painting().surface(id).value();
    std::string out;
    for (std::size_t i = info.layers.size(); i-- > 0;) {
        auto const& layer = info.layers[i];
        append(out, i == info.editLayer, layer.deleted, layer.visible, layer.name);
    }
    return out;
}
