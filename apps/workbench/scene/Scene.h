#pragma once

#include "workbench/scene/Changes.h"
#include "workbench/scene/EventBridge.h"

#include <QObject>
#include <QString>
#include <QUuid>

#include <optional>

class ZUndoStack;

namespace zsg {
class ColorController;
class ColorDB;
class ILightLayerController;
class ISceneGraph;
} // namespace zsg

namespace workbench {

class SceneContents;

/// The scene as the panels know it: the present root, the history, and what becomes of both.
///
/// Changes are collected and told once per turn of the event loop, never from within a command: a
/// panel may edit while it is told of a change. Main thread.
class Scene final : public QObject {
    Q_OBJECT

public:
    /// The stack is borrowed, and its change callback is the scene's from now on.
    /// So are the contents; without them the panels that list them stay empty.
    explicit Scene(ZUndoStack& undoStack, SceneContents const* contents = nullptr);
    ~Scene() override;

    /// The root to show from now on; null before one ends. Edits that are going on are dropped,
    /// because the history they belong to is gone by then.
    void setRoot(zsg::ISceneGraph* root);

    /// Null between two scenes, as are the next three.
    [[nodiscard]] zsg::ISceneGraph* root() const { return root_; }
    [[nodiscard]] zsg::ColorDB* colorDB() const;
    [[nodiscard]] zsg::ColorController* colorController() const;
    [[nodiscard]] zsg::ILightLayerController* lightLayers() const;
    /// Null without a root, too.
    [[nodiscard]] SceneContents const* contents() const { return root_ ? contents_ : nullptr; }
    [[nodiscard]] ZUndoStack& undoStack() const { return *undoStack_; }
    /// Another one for every root: ids mean something within one scene only.
    [[nodiscard]] QUuid const& sceneId() const { return sceneId_; }

    /// Tells at once what has been collected.
    void flush();

    // The history. Each ends the edits that are going on first and says when a step failed.
    void undo();
    void redo();
    void goTo(int index);

    /// Everybody who edits continuously ends that step now.
    void endDrags() { emit dragsEnding(); }
    /// Makes one entry of what commands of the console have been collecting.
    void endMacros();
    /// A line for the user that needs no answer.
    void say(QString const& text) { emit said(text); }
    /// To be called when commands of the console are through.
    void noteCommands() { emit commandsRan(); }
    /// To be called after a change that no entry of the history stands for.
    void noteUnrecordedChange() { emit changedUnrecorded(); }

signals:
    void changed(workbench::Changes const& changes);
    /// Entries, the place among them, or the saved state.
    void historyChanged();
    void dragsEnding();
    void rootEnding();
    void said(QString const& text);
    void changedUnrecorded();
    /// Commands of the console are through: what no event tells of may have changed as well.
    void commandsRan();

private:
    void report(bool done);

    ZUndoStack* undoStack_;
    SceneContents const* contents_;
    zsg::ISceneGraph* root_ = nullptr;
    QUuid sceneId_;
    std::optional<EventBridge> bridge_;
    bool isFlushing_ = false;
};

} // namespace workbench
