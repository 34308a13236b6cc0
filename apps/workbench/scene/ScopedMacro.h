#pragma once

#include "workbench/scene/Scene.h"

#include "zcore/ZUndoStack.h"

#include <QString>

namespace workbench {

/// Everything that is pushed during its life is one entry of the history. Edits that are going on
/// end first. A macro in which nothing was pushed leaves no entry.
class ScopedMacro {
public:
    ScopedMacro(Scene& scene, QString const& text) : undoStack_(scene.undoStack()) {
        scene.endDrags();
        undoStack_.beginMacro(text);
    }
    ~ScopedMacro() { undoStack_.endMacro({}); }
    ScopedMacro(ScopedMacro const&) = delete;
    ScopedMacro& operator=(ScopedMacro const&) = delete;

private:
    ZUndoStack& undoStack_;
};

} // namespace workbench
