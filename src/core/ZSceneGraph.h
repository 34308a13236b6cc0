#pragma once

#include "zsg/core/IEventQueue.h"
#include "zsg/core/ISceneGraph.h"
#include "zsg/painting/IPainterManager.h"

#include <memory>

namespace zsg {

class ILightLayerApi;
class IMaterialApi;

/// The root itself. The subsystems go in the reverse order of the members, so that the event queue
/// outlives all that post to it: material API, material handler, event queue, CMF manager, painter
/// manager, colour database, colour controller, light-layer API, light-layer controller.
class ZSceneGraph final : public ISceneGraph {
public:
    explicit ZSceneGraph(SceneGraphPars const& pars);
    ~ZSceneGraph() override;

    bool handleRendererMessage(nyxMessage const& message) override;
    [[nodiscard]] nyxRT_api* rtApi() const override;
    [[nodiscard]] IMaterialHandler* materialHandler() const override;
    [[nodiscard]] IEventQueue* eventQueue() const override;
    [[nodiscard]] ICMFManager* cmfManager() const override;
    [[nodiscard]] IPainterManager* painterManager() const override;
    [[nodiscard]] ColorDB* colorDB() const override;
    [[nodiscard]] ColorController* colorController() const override;
    [[nodiscard]] ILightLayerController* lightLayerController() const override;

private:
    std::unique_ptr<IMaterialApi> materialApi_;
    std::unique_ptr<IMaterialHandler> materialHandler_;
    std::unique_ptr<IEventQueue> eventQueue_;
    std::unique_ptr<ICMFManager> cmfManager_;
    std::unique_ptr<IPainterManager> painterManager_;
    std::unique_ptr<ColorDB> colorDB_;
    std::unique_ptr<ColorController> colorController_;
    std::unique_ptr<ILightLayerApi> lightLayerApi_;
    std::unique_ptr<ILightLayerController> lightLayerController_;
    nyxRT_api* rtApi_;
};

} // namespace zsg
