#pragma once

#include "zcore/Export.h"

#include <QString>

#include <functional>
#include <memory>

class ZUndoCommand;

/// The user's history of edits. Main thread only. Entries are single commands or macros; entries
/// below index() are done, those from index() on are undone and can be redone.
///
/// While the stack runs code of a command (undo, redo, mergeWith, destructor), every push, macro
/// begin or end, undo, redo, goTo, clear, clearRedo and setClean is refused (a pushed command is
/// deleted). While a macro is open, undo, redo, goTo, clear, clearRedo and setClean are. A refusal
/// changes nothing, writes one warning to the logging category "zcore.undo" and yields false where
/// there is a result.
///
/// What a command throws passes through to the caller. The stack stays usable. After a throw in
/// redo() the stack runs the command's undo() (whose own exception is dropped), so that no change
/// is left without an entry; a command that was being pushed is then deleted, an entry stays where
/// it is, to be redone. An entry that throws in undo() moves the index as one that fails does.
///
/// Commands refer to what they edit: clear the stack before that goes. What keeps a macro open must
/// end it before the stack goes; the embedded stack asserts that in debug builds.
class ZCORE_EXPORT ZUndoStack {
public:
    ZUndoStack();
    virtual ~ZUndoStack();
    ZUndoStack(ZUndoStack const&) = delete;
    ZUndoStack& operator=(ZUndoStack const&) = delete;

    /// Takes ownership of `command` and runs its redo(). When that fails the command is deleted,
    /// the stack stays as it was, and the result is false. Otherwise what could be redone is
    /// dropped, and the command is offered to the one before it on the same level (mergeWith; never
    /// across the clean mark or into a macro): merged it is deleted, else it becomes an entry. Null
    /// gives false.
    virtual bool push(ZUndoCommand* command);
    /// Collects what is pushed until the matching endMacro() into one entry. Macros nest.
    virtual void beginMacro(QString const& text);
    /// Ends the innermost macro; a non-empty text replaces the one that it began with. A macro in
    /// which nothing was pushed leaves no entry. Ignored, with a warning, when no macro is open. An
    /// open macro is no entry yet: count() and index() see it when the outermost one ends.
    virtual void endMacro(QString const& text);

    /// Undoes the entry below index(), or redoes the one at it. Every command of a macro runs even
    /// when one fails; false when any failed or there is nothing to do. The index moves all the
    /// same when there was an entry.
    bool undo();
    bool redo();
    /// Undoes or redoes until index() is `index` (0 to count()); false when out of range or when
    /// any step failed.
    bool goTo(int index);
    /// Deletes all entries; the empty stack is clean.
    bool clear();
    /// Deletes the entries that could be redone. After the undo() of an edit that was given up half
    /// way (Escape in a drag), so that nothing of it waits to be made again.
    bool clearRedo();

    [[nodiscard]] int count() const;
    [[nodiscard]] int index() const;
    /// Whether there is an entry for it and it would not be refused.
    [[nodiscard]] bool canUndo() const;
    [[nodiscard]] bool canRedo() const;
    /// The text of an entry; empty when out of range.
    [[nodiscard]] QString text(int entry) const;
    /// The entry itself, borrowed; null when out of range.
    [[nodiscard]] ZUndoCommand const* command(int entry) const;

    /// Marks the present state as the saved one.
    void setClean();
    /// False also when an open macro has changed the saved state.
    [[nodiscard]] bool isClean() const;
    /// The index that is clean, or -1 when that state can no longer be reached.
    [[nodiscard]] int cleanIndex() const;

    /// At most this many entries are kept, the oldest go first; 0 keeps all. Undone entries go only
    /// when no done one is left, the last to be redone first. Set by a running command, it takes
    /// effect with the next push.
    void setLimit(int limit);
    [[nodiscard]] int limit() const;

    /// Called at the end of every call that changed entries, index, clean mark or open macros. It
    /// may call the stack, replace itself, and end the stack.
    void setChangeCallback(std::function<void()> callback);

    /// Whether the stack is running code of a command.
    [[nodiscard]] bool isExecuting() const;
    /// How many macros are open.
    [[nodiscard]] int macroDepth() const;

private:
    class Impl;
    std::unique_ptr<Impl> impl_;
};
