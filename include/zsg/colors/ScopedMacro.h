#pragma once

#include "zsg/Export.h"

class QString;
class ZUndoStack;

namespace zsg {

/// Keeps a macro of the undo stack open while it lives. Scopes nest and end in reverse order, and
/// before the stack goes, which debug builds of the embedded one assert. One that is made while the
/// stack runs a command opens nothing, as the stack refuses it, and ends nothing.
class ZSG_EXPORT ScopedMacro {
public:
    /// `undoStack` is borrowed; null opens nothing.
    ScopedMacro(ZUndoStack* undoStack, QString const& text);
    ~ScopedMacro();
    ScopedMacro(ScopedMacro const&) = delete;
    ScopedMacro& operator=(ScopedMacro const&) = delete;

private:
    ZUndoStack* undoStack_;
};

} // namespace zsg
