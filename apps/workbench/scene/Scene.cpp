#include "workbench/scene/Scene.h"

#include "zsg/core/ISceneGraph.h"
#include "zsg/lightlayers/ILightLayerApi.h"
#include "zsg/lightlayers/ILightLayerController.h"

#include "zcore/ZUndoStack.h"

#include <QScopedValueRollback>
#include <QTimer>

namespace workbench {

Scene::Scene(ZUndoStack& undoStack, SceneContents const* contents)
    : undoStack_(&undoStack), contents_(contents) {
    undoStack_->setChangeCallback([this] { emit historyChanged(); });
}

Scene::~Scene() { undoStack_->setChangeCallback({}); }

void Scene::setRoot(zsg::ISceneGraph* root) {
    if (root_) {
        emit rootEnding();
    }
    bridge_.reset();
    root_ = root;
    if (!root) {
        return;
    }
    sceneId_ = QUuid::createUuid();
    // The working copy of the light layers is empty until somebody asks for it.
    lightLayers()->lightLayerApi()->sync();
    bridge_.emplace(*root->eventQueue(), [this] {
        QMetaObject::invokeMethod(this, &Scene::flush, Qt::QueuedConnection);
    });
    Changes all;
    all.everything = true;
    emit changed(all);
    emit historyChanged();
}

zsg::ColorDB* Scene::colorDB() const { return root_ ? root_->colorDB() : nullptr; }

zsg::ColorController* Scene::colorController() const {
    return root_ ? root_->colorController() : nullptr;
}

zsg::ILightLayerController* Scene::lightLayers() const {
    return root_ ? root_->lightLayerController() : nullptr;
}

void Scene::flush() {
    if (!bridge_) {
        return;
    }
    // A nested event loop comes by while a command runs, or while models are told: a row that goes
    // closes its editor, which may make an edit of what was typed. Nobody calls again for what has
    // been collected already.
    if (undoStack_->isExecuting() || isFlushing_) {
        QTimer::singleShot(10, this, &Scene::flush);
        return;
    }
    QScopedValueRollback<bool> const flushing(isFlushing_, true);
    if (bridge_->lightLayersChanged()) {
        // An assignment reaches the working copy, which the panels read, by this only.
        lightLayers()->lightLayerApi()->sync();
    }
    Changes const changes = bridge_->take();
    if (!changes.isEmpty()) {
        emit changed(changes);
    }
}

void Scene::endMacros() {
    for (int open = undoStack_->macroDepth(); open > 0; --open) {
        undoStack_->endMacro({});
    }
}

void Scene::undo() {
    endDrags();
    endMacros(); // or the history would refuse, and nobody in the window knows why
    report(!undoStack_->canUndo() || undoStack_->undo());
}

void Scene::redo() {
    endDrags();
    endMacros();
    report(!undoStack_->canRedo() || undoStack_->redo());
}

void Scene::goTo(int index) {
    endDrags();
    endMacros();
    report(undoStack_->goTo(index));
}

void Scene::report(bool done) {
    if (!done) {
        say(tr("A step of the history could not be carried out."));
    }
}

} // namespace workbench
