#include "zsg/colors/ScopedMacro.h"

#include "zcore/ZUndoStack.h"

#include <QString>

namespace zsg {

ScopedMacro::ScopedMacro(ZUndoStack* undoStack, QString const& text) : undoStack_(undoStack) {
    if (undoStack_) {
        undoStack_->beginMacro(text);
    }
}

ScopedMacro::~ScopedMacro() {
    if (undoStack_) {
        undoStack_->endMacro(QString());
    }
}

} // namespace zsg
