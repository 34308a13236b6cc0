#include "zsg/colors/ScopedMacro.h"

#include "colors/logging.h"

#include "zcore/ZUndoStack.h"

#include <QString>

#include <exception>

namespace zsg {

ScopedMacro::ScopedMacro(ZUndoStack* undoStack, QString const& text) : undoStack_(undoStack) {
    if (!undoStack_) {
        return;
    }
    bool const refused = undoStack_->isExecuting();
    undoStack_->beginMacro(text);
    if (refused) {
        undoStack_ = nullptr; // else its end could be that of another's macro
    }
}

// What listens to the stack may throw; the macro is closed by then.
ScopedMacro::~ScopedMacro() {
    if (!undoStack_) {
        return;
    }
    try {
        undoStack_->endMacro(QString());
    } catch (std::exception const& error) {
        qCWarning(zsgColors, "an exception at the end of a macro was dropped: %s", error.what());
    } catch (...) {
        qCWarning(zsgColors, "an exception at the end of a macro was dropped");
    }
}

} // namespace zsg
