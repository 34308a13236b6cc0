#pragma once

class nyxRT_api;
class ZTaskQueue;
class ZUndoStack;

namespace zsg {

class IMaterialService;
class ISceneMaterialManager;

/// What the application lends to a scene graph. All of it is borrowed and has to outlive the root.
struct SceneGraphPars {
    nyxRT_api* rtApi = nullptr;                  ///< every call to the renderer goes through it
    IMaterialService* materialService = nullptr; ///< for the material handler
    ISceneMaterialManager* sceneMaterialManager = nullptr; ///< for the colour controller
    ZTaskQueue* taskQueue = nullptr;                       ///< where painting queues render tasks
    ZUndoStack* undoStack = nullptr;                       ///< where every undoable edit goes
};

} // namespace zsg
