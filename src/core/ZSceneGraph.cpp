#include "core/ZSceneGraph.h"

#include "core/ZEventQueue.h"
#include "core/postEvent.h"
#include "lightlayers/ZLightLayerController.h"
#include "materials/ZCMFManager.h"
#include "materials/ZMaterialApi.h"
#include "materials/ZMaterialHandler.h"
#include "painting/ZPainterManager.h"
#include "zsg/colors/ColorController.h"
#include "zsg/colors/ColorDB.h"
#include "zsg/core/Events.h"
#include "zsg/lightlayers/ZLightLayerApi.h"

#include "nyxrender/nyxMessage.h"

#include <utility>
#include <vector>

namespace zsg {

// The subsystems are built in the body: some of them reach the others, and the handle, through the
// root while it is under construction.
ZSceneGraph::ZSceneGraph(SceneGraphPars const& pars)
    : materialApi_(std::make_unique<ZMaterialApi>(pars.rtApi)), rtApi_(pars.rtApi) {
    materialHandler_ =
        std::make_unique<ZMaterialHandler>(materialApi_.get(), pars.materialService, this);
    eventQueue_ = std::make_unique<ZEventQueue>();
    cmfManager_ = std::make_unique<ZCMFManager>(this);
    painterManager_ = std::make_unique<ZPainterManager>(rtApi_, pars.taskQueue, eventQueue_.get(),
                                                        pars.undoStack);
    colorDB_ = std::make_unique<ColorDB>(eventQueue_.get(), rtApi_);
    colorController_ = std::make_unique<ColorController>(colorDB_.get(), pars.sceneMaterialManager,
                                                         pars.undoStack);
    auto lightLayerApi = std::make_unique<ZLightLayerApi>(eventQueue_.get(), rtApi_);
    lightLayerController_ =
        std::make_unique<ZLightLayerController>(lightLayerApi.get(), pars.undoStack);
    lightLayerApi_ = std::move(lightLayerApi);
}

ZSceneGraph::~ZSceneGraph() = default;

bool ZSceneGraph::handleRendererMessage(nyxMessage const& message) {
    switch (message.code) {
    case nyxMessage::ColorsSynced: {
        // Listeners may call the renderer, which may use the list's memory again.
        std::vector<nyx::ColorId> const ids(message.colors.begin(), message.colors.end());
        for (nyx::ColorId const id : ids) {
            post(eventQueue_.get(), std::make_unique<ColorSyncedEvent>(id));
        }
        return true;
    }
    case nyxMessage::ColorwayActivated:
        colorDB_->handleColorwayActivated(message.colorway);
        return true;
    default:
        return false;
    }
}

nyxRT_api* ZSceneGraph::rtApi() const { return rtApi_; }

IMaterialHandler* ZSceneGraph::materialHandler() const { return materialHandler_.get(); }

IEventQueue* ZSceneGraph::eventQueue() const { return eventQueue_.get(); }

ICMFManager* ZSceneGraph::cmfManager() const { return cmfManager_.get(); }

IPainterManager* ZSceneGraph::painterManager() const { return painterManager_.get(); }

ColorDB* ZSceneGraph::colorDB() const { return colorDB_.get(); }

ColorController* ZSceneGraph::colorController() const { return colorController_.get(); }

ILightLayerController* ZSceneGraph::lightLayerController() const {
    return lightLayerController_.get();
}

} // namespace zsg
